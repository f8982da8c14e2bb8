# cmake -DPATCHELF=... -DBUNDLE=... -P BundleRunpath.cmake
#
# Points the RUNPATH of every ELF file installed in the launcher bundle
# BUNDLE at Contents/Frameworks, relative to the file's own folder, so that
# the libraries there are found before the system's wherever the bundle lies.
if(NOT PATCHELF)
  message(FATAL_ERROR "patchelf is needed to install the launcher bundle (Debian package patchelf)")
endif()

function(set_runpath runpath)
  foreach(file IN LISTS ARGN)
    # Symbolic links lead to a file of the same folder, which is done itself.
    if(IS_SYMLINK "${file}")
      continue()
    endif()
    execute_process(COMMAND "${PATCHELF}" --set-rpath "${runpath}" "${file}" COMMAND_ERROR_IS_FATAL ANY)
  endforeach()
endfunction()

set(frameworks "${BUNDLE}/Contents/Frameworks")
file(GLOB libraries LIST_DIRECTORIES false "${frameworks}/*.so*")
file(GLOB plugins LIST_DIRECTORIES false "${frameworks}/plugins/*/*.so")
set_runpath("$ORIGIN/../Frameworks" "${BUNDLE}/Contents/MacOS/launcher")
set_runpath("$ORIGIN" ${libraries})
set_runpath("$ORIGIN/../.." ${plugins})
