# cmake --install BUILD --prefix DIR installs DIR/Calderix Drive.app: the
# launcher bundle of the build tree, plus every shared library that the
# launcher and its platform plug-ins load, under Contents/Frameworks, so
# that it runs on a machine without Qt, ICU or libarchive:
#   Contents/MacOS/launcher                     RUNPATH $ORIGIN/../Frameworks
#   Contents/Frameworks/*.so.*                  RUNPATH $ORIGIN
#   Contents/Frameworks/plugins/<kind>/*.so     RUNPATH $ORIGIN/../..
# RUNPATH only applies to a file's own dependencies, so every library
# carries one, and the libraries found through it come before the
# system's. Last, vpkpack checks the installed bundle as a whole.
#
# Left to the system, by soname (CALDERIX_SYSTEM_LIBRARIES), together with
# every library these need, since a library of the system finds its own
# dependencies in the system, and a process holds one copy of each:
# - the C library and the dynamic loader, which belong to the kernel's
#   userland and cannot be carried by a program they load;
# - the compiler's runtime (libstdc++, libgcc_s, the sanitizer runtimes):
#   a process holds one copy, and the graphics driver that libGL loads at
#   run time links the system's, which is as new as the C library;
# - OpenGL (libGL and the GL vendor dispatch, EGL, DRM, GBM) and the X11
#   connection libraries it is built on (libX11, libxcb, libXau, libXdmcp,
#   which needs libbsd and libmd): libGL picks the machine's own graphics
#   driver, which is built against the system's copies of these.
# Everything else the launcher and the plug-ins need (Qt, ICU, libarchive
# and its compression libraries, the xcb extension and xkbcommon libraries
# of the xcb plug-in, fontconfig, freetype, glib, D-Bus) comes along.
set(CALDERIX_INSTALL_BUNDLE "Calderix Drive.app")
set(CALDERIX_SYSTEM_LIBRARIES
  "^ld-linux" "^libc\\.so" "^libm\\.so" "^libdl\\.so" "^libpthread\\.so" "^librt\\.so"
  "^libresolv\\.so" "^libutil\\.so"
  "^libstdc\\+\\+\\.so" "^libgcc_s\\.so" "^libasan\\.so" "^libubsan\\.so"
  "^libGL\\.so" "^libGLX" "^libGLdispatch\\.so" "^libEGL\\.so" "^libOpenGL\\.so" "^libdrm\\.so" "^libgbm\\.so"
  "^libX11\\.so" "^libX11-xcb\\.so" "^libxcb\\.so" "^libXau\\.so" "^libXdmcp\\.so" "^libbsd\\.so" "^libmd\\.so")

find_program(CALDERIX_PATCHELF patchelf DOC "patchelf, which gives the installed libraries their RUNPATH")

# Files and folders the same on every machine, whatever its umask.
set(CMAKE_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS
  OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ WORLD_EXECUTE)

set(_app "${CALDERIX_INSTALL_BUNDLE}")
install(TARGETS launcher RUNTIME_DEPENDENCY_SET calderix_runtime RUNTIME DESTINATION "${_app}/Contents/MacOS")
install(FILES "${CALDERIX_BUNDLE_PLIST}" DESTINATION "${_app}/Contents" RENAME Info.plist)
install(FILES "${CALDERIX_BUNDLE_INFO}" DESTINATION "${_app}/Contents/Resources")
install(FILES "${CALDERIX_BUNDLE_PACKAGE}" DESTINATION "${_app}/Contents/Resources/package")
install(FILES "${PROJECT_SOURCE_DIR}/resources/images/ico_72_calderix.png"
  DESTINATION "${_app}/Contents/Resources/images")
install(FILES "${PROJECT_SOURCE_DIR}/resources/launcher.debug" DESTINATION "${_app}/log")
install(IMPORTED_RUNTIME_ARTIFACTS ${CALDERIX_PLATFORM_PLUGINS} RUNTIME_DEPENDENCY_SET calderix_runtime
  LIBRARY DESTINATION "${_app}/Contents/Frameworks/plugins/platforms")
if(CALDERIX_XCBGL_PLUGINS)
  install(IMPORTED_RUNTIME_ARTIFACTS ${CALDERIX_XCBGL_PLUGINS} RUNTIME_DEPENDENCY_SET calderix_runtime
    LIBRARY DESTINATION "${_app}/Contents/Frameworks/plugins/xcbglintegrations")
endif()
install(RUNTIME_DEPENDENCY_SET calderix_runtime
  PRE_EXCLUDE_REGEXES ${CALDERIX_SYSTEM_LIBRARIES}
  LIBRARY DESTINATION "${_app}/Contents/Frameworks")

install(CODE "
  set(bundle \"\$ENV{DESTDIR}\${CMAKE_INSTALL_PREFIX}/${_app}\")
  execute_process(
    COMMAND \"${CMAKE_COMMAND}\" \"-DPATCHELF=${CALDERIX_PATCHELF}\" \"-DBUNDLE=\${bundle}\"
            -P \"${PROJECT_SOURCE_DIR}/cmake/BundleRunpath.cmake\"
    COMMAND_ERROR_IS_FATAL ANY)
  execute_process(COMMAND \"$<TARGET_FILE:vpkpack>\" --check-bundle \"\${bundle}\" COMMAND_ERROR_IS_FATAL ANY)")
