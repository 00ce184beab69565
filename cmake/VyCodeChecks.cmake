# clang-format, clang-tidy and clazy on the product's code, as the target code_checks. A file is looked at again when it
# was compiled again: its object tells of a change in it, in a header and in the options.
# Not part of `all`. The tests are left out: they set their tables by hand, and what is in them ends with them.

find_program(CLANG_FORMAT clang-format REQUIRED)
find_program(CLANG_TIDY clang-tidy REQUIRED)
find_program(CLAZY clazy-standalone REQUIRED)

# Beside level 1, of level 2. Not its others: a parent in every constructor and Q_OBJECT in every class are wrong for
# objects that live on the stack and for helpers without signals.
set(clazy level1,base-class-event,copyable-polymorphic,old-style-connect,qstring-allocations,rule-of-three,virtual-call-ctor)

# vy_code_checks(TARGET...)
function(vy_code_checks)
  set(check ${PROJECT_SOURCE_DIR}/cmake/code-check)
  foreach(target ${ARGN})
    get_target_property(folder ${target} SOURCE_DIR)
    get_target_property(sources ${target} SOURCES)
    list(FILTER sources INCLUDE REGEX "^[^/]*\\.cpp$")
    foreach(source ${sources})
      set(stamp ${CMAKE_CURRENT_BINARY_DIR}/code_checks/${target}.${source})
      add_custom_command(OUTPUT ${stamp}
        COMMAND ${check} ${CLANG_TIDY} -quiet -p ${PROJECT_BINARY_DIR} ${folder}/${source}
        COMMAND ${check} ${CLAZY} -checks=${clazy} -p ${PROJECT_BINARY_DIR} ${folder}/${source}
        COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
        DEPENDS "$<FILTER:$<TARGET_OBJECTS:${target}>,INCLUDE,/${source}\\.o$>"
                ${PROJECT_SOURCE_DIR}/.clang-tidy ${check}
        COMMENT "Checking ${target}/${source}")
      list(APPEND stamps ${stamp})
    endforeach()
  endforeach()
  set(folders host/VyViewerCore host/VyCommonGUI parampage trigger triggerstop panel devices viewer bench gallery)
  list(TRANSFORM folders PREPEND ${PROJECT_SOURCE_DIR}/)
  list(TRANSFORM folders APPEND "/*.cpp" OUTPUT_VARIABLE texts)
  list(TRANSFORM folders APPEND "/*.h")
  file(GLOB texts CONFIGURE_DEPENDS ${texts} ${folders})
  set(stamp ${CMAKE_CURRENT_BINARY_DIR}/code_checks/format)
  add_custom_command(OUTPUT ${stamp}
    COMMAND ${CLANG_FORMAT} --dry-run -Werror ${texts}
    COMMAND ${CMAKE_COMMAND} -E touch ${stamp}
    DEPENDS ${texts} ${PROJECT_SOURCE_DIR}/.clang-format
    COMMENT "Checking the layout")
  add_custom_target(code_checks DEPENDS ${stamps} ${stamp})
endfunction()
