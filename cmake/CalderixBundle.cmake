# Assembles the demo launcher bundle, laid out as a deployed macOS
# application:
#   Contents/MacOS/launcher                     the launcher
#   Contents/Info.plist
#   Contents/Resources/INFO                     the package's version
#   Contents/Resources/package/calderix.vpk     the client, packed by vpkpack
#   Contents/Resources/images/ico_72_calderix.png
#   Contents/Frameworks/plugins/                the only Qt plug-ins it loads
#   log/launcher.debug                          levels a developer may edit
# The client in the package is the demo UI, at build CALDERIX_DEMO_UI_BUILD.
set(CALDERIX_DEMO_DIR "${PROJECT_BINARY_DIR}/demo")
set(CALDERIX_DEMO_BUNDLE "${CALDERIX_DEMO_DIR}/Calderix Drive.app")
set(_contents "${CALDERIX_DEMO_BUNDLE}/Contents")
set(_client "${CALDERIX_DEMO_DIR}/client/Calderix.app")
set(_demo_ui_dir "${PROJECT_BINARY_DIR}/tools/demo-ui")

set(_platform_plugins)
foreach(_plugin Qt5::QXcbIntegrationPlugin Qt5::QOffscreenIntegrationPlugin Qt5::QMinimalIntegrationPlugin)
  if(TARGET ${_plugin})
    list(APPEND _platform_plugins "$<TARGET_FILE:${_plugin}>")
  endif()
endforeach()
set(_xcbgl_plugins)
if(TARGET Qt5::QXcbGlxIntegrationPlugin)
  list(APPEND _xcbgl_plugins "$<TARGET_FILE:Qt5::QXcbGlxIntegrationPlugin>")
endif()

configure_file("${PROJECT_SOURCE_DIR}/resources/Info.plist.in" "${CALDERIX_DEMO_DIR}/launcher-Info.plist" @ONLY)

# The package: the demo UI laid out as the client bundle, packed with the
# UI executable and INFO last; vpkpack also writes the launcher's INFO.
add_custom_command(
  OUTPUT "${_contents}/Resources/package/calderix.vpk" "${_contents}/Resources/INFO"
  COMMAND ${CMAKE_COMMAND} -E rm -rf "${CALDERIX_DEMO_DIR}/client"
  COMMAND ${CMAKE_COMMAND} -E make_directory "${_client}/Contents/MacOS" "${_client}/Contents/Resources"
          "${_contents}/Resources/package"
  COMMAND ${CMAKE_COMMAND} -E copy "$<TARGET_FILE:calderix-drive-ui>" "${_client}/Contents/MacOS/calderix-drive-ui"
  COMMAND ${CMAKE_COMMAND} -E copy "${_demo_ui_dir}/Info.plist" "${_client}/Contents/Info.plist"
  COMMAND ${CMAKE_COMMAND} -E copy "${_demo_ui_dir}/INFO" "${_client}/Contents/Resources/INFO"
  COMMAND "$<TARGET_FILE:vpkpack>" --info-out "${_contents}/Resources/INFO"
          "${_client}" "${_contents}/Resources/package/calderix.vpk"
  DEPENDS calderix-drive-ui vpkpack "${_demo_ui_dir}/Info.plist" "${_demo_ui_dir}/INFO"
  COMMENT "Packing the demo client into calderix.vpk"
  VERBATIM)

add_custom_target(demo-bundle ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory
          "${_contents}/MacOS" "${_contents}/Resources/images"
          "${_contents}/Frameworks/plugins/platforms"
          "${_contents}/Frameworks/plugins/xcbglintegrations"
          "${CALDERIX_DEMO_BUNDLE}/log"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "$<TARGET_FILE:launcher>" "${_contents}/MacOS/launcher"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "${CALDERIX_DEMO_DIR}/launcher-Info.plist" "${_contents}/Info.plist"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "${PROJECT_SOURCE_DIR}/resources/images/ico_72_calderix.png"
          "${_contents}/Resources/images/ico_72_calderix.png"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_platform_plugins} "${_contents}/Frameworks/plugins/platforms/"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_xcbgl_plugins} "${_contents}/Frameworks/plugins/xcbglintegrations/"
  # A developer's edits of the level file survive rebuilds.
  COMMAND sh -c "test -f \"$1\" || cp \"$2\" \"$1\"" sh "${CALDERIX_DEMO_BUNDLE}/log/launcher.debug"
          "${PROJECT_SOURCE_DIR}/resources/launcher.debug"
  DEPENDS launcher "${_contents}/Resources/package/calderix.vpk"
  COMMENT "Assembling ${CALDERIX_DEMO_BUNDLE}"
  VERBATIM)
