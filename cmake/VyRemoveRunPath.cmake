# In a package the libraries lie where the linker looks by itself; a path of their own would only be in its way.
file(GLOB_RECURSE binaries ${CPACK_TEMPORARY_DIRECTORY}/*/usr/bin/vy* ${CPACK_TEMPORARY_DIRECTORY}/*/usr/lib*.so.*)
foreach(binary IN LISTS binaries)
  if(NOT IS_SYMLINK ${binary})
    file(RPATH_REMOVE FILE ${binary})
  endif()
endforeach()
