# What every target of ours has in common. Nothing of it reaches the projects that embed us.

if(VYTRIGGER_SANITIZE)
  set(vy_sanitizers "-fsanitize=${VYTRIGGER_SANITIZE}" -fno-sanitize-recover=all -fno-omit-frame-pointer)
endif()
if(VYTRIGGER_FUZZ) # all of ours tells the fuzzer where it went; only the targets have its main()
  list(APPEND vy_sanitizers -fsanitize=fuzzer-no-link)
endif()

function(vy_target target)
  set_target_properties(${target} PROPERTIES
    AUTOMOC ON
    CXX_STANDARD 17
    CXX_STANDARD_REQUIRED ON
    CXX_EXTENSIONS OFF
    CXX_VISIBILITY_PRESET hidden
    VISIBILITY_INLINES_HIDDEN ON
    POSITION_INDEPENDENT_CODE ON)
  target_compile_definitions(${target} PRIVATE
    QT_NO_KEYWORDS QT_NO_FOREACH QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII
    QT_NO_URL_CAST_FROM_STRING QT_STRICT_ITERATORS QT_DEPRECATED_WARNINGS)
  target_compile_options(${target} PRIVATE
    -Wall -Wextra -Wpedantic -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wcast-qual
    -Wformat=2 -Wundef
    $<$<BOOL:${VYTRIGGER_WERROR}>:-Werror> ${vy_sanitizers})
  target_link_options(${target} PRIVATE ${vy_sanitizers})
endfunction()

# Our host libraries and the panel library: shared, versioned, undefined symbols refused at link time.
function(vy_shared_library target)
  vy_target(${target})
  set_target_properties(${target} PROPERTIES
    VERSION ${PROJECT_VERSION}
    SOVERSION ${PROJECT_VERSION_MAJOR})
  if(NOT VYTRIGGER_SANITIZE)
    target_link_options(${target} PRIVATE -Wl,--no-undefined)
  endif()
endfunction()
