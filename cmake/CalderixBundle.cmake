# Assembles the launcher bundle in the build tree, laid out as a deployed
# macOS application:
#   Contents/MacOS/launcher                     the launcher
#   Contents/Info.plist                         CFBundleVersion: the client's build
#   Contents/Resources/INFO                     the package's version
#   Contents/Resources/package/calderix.vpk     the client, packed by vpkpack
#   Contents/Resources/images/ico_72_calderix.png
#   Contents/Frameworks/plugins/                the only Qt plug-ins it loads
#   log/launcher.debug                          levels, all commented out
# The client in the package is the bundle CALDERIX_CLIENT_BUNDLE names, or
# the demo UI at build CALDERIX_DEMO_UI_BUILD when it names none. The build
# never edits this bundle afterwards: run.sh works on a copy.
set(CALDERIX_CLIENT_BUNDLE "" CACHE PATH
  "The client bundle (a Calderix.app folder) that the launcher bundle carries; empty: the demo UI")
set(CALDERIX_DEMO_DIR "${PROJECT_BINARY_DIR}/demo")
set(CALDERIX_DEMO_BUNDLE "${CALDERIX_DEMO_DIR}/Calderix Drive.app")
set(CALDERIX_BUNDLE_PACKAGE "${CALDERIX_DEMO_BUNDLE}/Contents/Resources/package/calderix.vpk")
set(CALDERIX_BUNDLE_INFO "${CALDERIX_DEMO_BUNDLE}/Contents/Resources/INFO")
set(CALDERIX_BUNDLE_PLIST "${CALDERIX_DEMO_DIR}/launcher-Info.plist")
set(_contents "${CALDERIX_DEMO_BUNDLE}/Contents")
set(_demo_ui_dir "${PROJECT_BINARY_DIR}/tools/demo-ui")

# The platform plug-ins by kind: the xcb plug-in loads its GL integration
# from a folder of its own.
set(CALDERIX_PLATFORM_PLUGINS)
foreach(_plugin Qt5::QXcbIntegrationPlugin Qt5::QOffscreenIntegrationPlugin Qt5::QMinimalIntegrationPlugin)
  if(TARGET ${_plugin})
    list(APPEND CALDERIX_PLATFORM_PLUGINS ${_plugin})
  endif()
endforeach()
set(CALDERIX_XCBGL_PLUGINS)
if(TARGET Qt5::QXcbGlxIntegrationPlugin)
  list(APPEND CALDERIX_XCBGL_PLUGINS Qt5::QXcbGlxIntegrationPlugin)
endif()
list(TRANSFORM CALDERIX_PLATFORM_PLUGINS REPLACE "(.+)" "$<TARGET_FILE:\\1>" OUTPUT_VARIABLE _platform_plugin_files)
list(TRANSFORM CALDERIX_XCBGL_PLUGINS REPLACE "(.+)" "$<TARGET_FILE:\\1>" OUTPUT_VARIABLE _xcbgl_plugin_files)

if(CALDERIX_CLIENT_BUNDLE)
  get_filename_component(_client "${CALDERIX_CLIENT_BUNDLE}" ABSOLUTE)
  if(NOT IS_DIRECTORY "${_client}")
    message(FATAL_ERROR "CALDERIX_CLIENT_BUNDLE: '${_client}' is not a folder")
  endif()
  # Packed again whenever a file in it changes; CONFIGURE_DEPENDS notices
  # files that come or go. Links are left to vpkpack, which judges them.
  file(GLOB_RECURSE _client_files CONFIGURE_DEPENDS LIST_DIRECTORIES false "${_client}/*")
  set(_client_depends)
  foreach(_file IN LISTS _client_files)
    if(NOT IS_SYMLINK "${_file}")
      list(APPEND _client_depends "${_file}")
    endif()
  endforeach()
  set(_prepare_client)
  set(_comment "Packing the client ${_client} into calderix.vpk")
else()
  # The demo UI laid out as the client bundle.
  set(_client "${CALDERIX_DEMO_DIR}/client/Calderix.app")
  set(_client_depends calderix-drive-ui "${_demo_ui_dir}/Info.plist" "${_demo_ui_dir}/INFO")
  set(_prepare_client
    COMMAND ${CMAKE_COMMAND} -E rm -rf "${CALDERIX_DEMO_DIR}/client"
    COMMAND ${CMAKE_COMMAND} -E make_directory "${_client}/Contents/MacOS" "${_client}/Contents/Resources"
    COMMAND ${CMAKE_COMMAND} -E copy "$<TARGET_FILE:calderix-drive-ui>" "${_client}/Contents/MacOS/calderix-drive-ui"
    COMMAND ${CMAKE_COMMAND} -E copy "${_demo_ui_dir}/Info.plist" "${_client}/Contents/Info.plist"
    COMMAND ${CMAKE_COMMAND} -E copy "${_demo_ui_dir}/INFO" "${_client}/Contents/Resources/INFO")
  set(_comment "Packing the demo client into calderix.vpk")
endif()

# The package, packed with the UI executable and INFO last; vpkpack also
# writes the launcher's INFO. A client vpkpack refuses stops the build
# with its message.
add_custom_command(
  OUTPUT "${CALDERIX_BUNDLE_PACKAGE}" "${CALDERIX_BUNDLE_INFO}"
  ${_prepare_client}
  COMMAND ${CMAKE_COMMAND} -E make_directory "${_contents}/Resources/package"
  COMMAND "$<TARGET_FILE:vpkpack>" --info-out "${CALDERIX_BUNDLE_INFO}" "${_client}" "${CALDERIX_BUNDLE_PACKAGE}"
  DEPENDS vpkpack ${_client_depends}
  COMMENT "${_comment}"
  VERBATIM)

# The launcher's property list carries the client's build as CFBundleVersion.
add_custom_command(
  OUTPUT "${CALDERIX_BUNDLE_PLIST}"
  COMMAND ${CMAKE_COMMAND} "-DVPKPACK=$<TARGET_FILE:vpkpack>" "-DINFO=${CALDERIX_BUNDLE_INFO}"
          "-DTEMPLATE=${PROJECT_SOURCE_DIR}/resources/Info.plist.in" "-DOUTPUT=${CALDERIX_BUNDLE_PLIST}"
          "-DPROJECT_VERSION=${PROJECT_VERSION}" -P "${PROJECT_SOURCE_DIR}/cmake/LauncherPlist.cmake"
  DEPENDS vpkpack "${CALDERIX_BUNDLE_INFO}" "${PROJECT_SOURCE_DIR}/resources/Info.plist.in"
          "${PROJECT_SOURCE_DIR}/cmake/LauncherPlist.cmake"
  COMMENT "Writing the launcher's Info.plist"
  VERBATIM)

add_custom_target(demo-bundle ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory
          "${_contents}/MacOS" "${_contents}/Resources/images"
          "${_contents}/Frameworks/plugins/platforms"
          "${_contents}/Frameworks/plugins/xcbglintegrations"
          "${CALDERIX_DEMO_BUNDLE}/log"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "$<TARGET_FILE:launcher>" "${_contents}/MacOS/launcher"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "${CALDERIX_BUNDLE_PLIST}" "${_contents}/Info.plist"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "${PROJECT_SOURCE_DIR}/resources/images/ico_72_calderix.png"
          "${_contents}/Resources/images/ico_72_calderix.png"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_platform_plugin_files} "${_contents}/Frameworks/plugins/platforms/"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_xcbgl_plugin_files} "${_contents}/Frameworks/plugins/xcbglintegrations/"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "${PROJECT_SOURCE_DIR}/resources/launcher.debug"
          "${CALDERIX_DEMO_BUNDLE}/log/launcher.debug"
  DEPENDS launcher "${CALDERIX_BUNDLE_PACKAGE}" "${CALDERIX_BUNDLE_PLIST}"
  COMMENT "Assembling ${CALDERIX_DEMO_BUNDLE}"
  VERBATIM)
