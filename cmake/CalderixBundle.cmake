# Assembles the demo launcher bundle, laid out as a deployed macOS
# application: the executable in Contents/MacOS and the Qt plug-ins it may
# load in Contents/Frameworks/plugins, the only plug-in folder it uses.
set(CALDERIX_DEMO_DIR "${PROJECT_BINARY_DIR}/demo")
set(CALDERIX_DEMO_BUNDLE "${CALDERIX_DEMO_DIR}/Calderix Drive.app")
set(_contents "${CALDERIX_DEMO_BUNDLE}/Contents")

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

add_custom_target(demo-bundle ALL
  COMMAND ${CMAKE_COMMAND} -E make_directory
          "${_contents}/MacOS" "${_contents}/Resources"
          "${_contents}/Frameworks/plugins/platforms"
          "${_contents}/Frameworks/plugins/xcbglintegrations"
          "${CALDERIX_DEMO_BUNDLE}/log"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different "$<TARGET_FILE:launcher>" "${_contents}/MacOS/launcher"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_platform_plugins} "${_contents}/Frameworks/plugins/platforms/"
  COMMAND ${CMAKE_COMMAND} -E copy_if_different ${_xcbgl_plugins} "${_contents}/Frameworks/plugins/xcbglintegrations/"
  DEPENDS launcher
  COMMENT "Assembling ${CALDERIX_DEMO_BUNDLE}"
  VERBATIM)
