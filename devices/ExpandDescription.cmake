# Writes OUTPUT: TEMPLATE with STOPCONFIG put in for each configuration. Everything stays quoted: the texts
# are full of semicolons, which would split a list.

file(READ "${TEMPLATE}" text)
file(READ "${STOPCONFIG}" stopconfig)
set(stopconfigs "")
foreach(number RANGE 1 5)
  string(REPLACE "%1" "${number}" one "${stopconfig}")
  set(enabled false)
  if(number EQUAL 1)
    set(enabled true)
  endif()
  string(REPLACE "%2" "${enabled}" one "${one}")
  string(APPEND stopconfigs "${one}")
endforeach()
string(REPLACE "<!-- the stop configurations -->\n" "${stopconfigs}" text "${text}")
file(WRITE "${OUTPUT}" "${text}")
