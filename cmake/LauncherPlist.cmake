# cmake -DVPKPACK=... -DINFO=... -DTEMPLATE=... -DOUTPUT=... -DPROJECT_VERSION=... -P LauncherPlist.cmake
#
# Writes the launcher's Info.plist from TEMPLATE with CFBundleVersion set to
# the build number of the version file INFO, as vpkpack reads it, so that
# the launcher bundle carries the version of the client it installs.
execute_process(
  COMMAND "${VPKPACK}" --print-build "${INFO}"
  OUTPUT_VARIABLE CALDERIX_CLIENT_BUILD
  ERROR_VARIABLE error
  RESULT_VARIABLE result
  OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT result EQUAL 0)
  message(FATAL_ERROR "${error}")
endif()
configure_file("${TEMPLATE}" "${OUTPUT}" @ONLY)
