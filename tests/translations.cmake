# Fails when a text of the sources is missing in a translation, or not translated.
# Given: LUPDATE, SOURCE, WORK
file(GLOB translations ${SOURCE}/translations/*.ts)
foreach(translation ${translations})
  get_filename_component(name ${translation} NAME)
  file(READ ${translation} before)
  file(WRITE ${WORK}/${name} "${before}")
  execute_process(
    COMMAND ${LUPDATE} -silent -locations none -no-obsolete
      host parampage trigger triggerstop panel devices viewer -ts ${WORK}/${name}
    WORKING_DIRECTORY ${SOURCE} COMMAND_ERROR_IS_FATAL ANY)
  file(READ ${WORK}/${name} after)
  if(NOT before STREQUAL after)
    message(FATAL_ERROR "${name} is out of date: run lupdate as docs/contributing.md says")
  endif()
  if(after MATCHES "unfinished")
    message(FATAL_ERROR "${name} has untranslated texts")
  endif()
endforeach()
