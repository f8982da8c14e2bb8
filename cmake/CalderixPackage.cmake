# cpack (in the build folder) writes the release archive: the installed
# launcher bundle as "Calderix Drive.app" at the archive's root, in
# calderix-drive-<client build>-linux-<machine>.tar.xz. The build number is
# read from the bundle's INFO when cpack runs, since the client may have
# been packed again since cmake configured.
#
# The archive is reproducible as far as CPack allows: fixed modes, every
# time set to SOURCE_DATE_EPOCH (0 when it is not set) and xz compressed by
# the same number of threads on every machine, so that packing the same
# build again gives the same bytes. CPack leaves two things to the machine:
# the entries come in the order the file system lists them, and they carry
# the owner of the user who runs cpack.
set(CPACK_GENERATOR TXZ)
set(CPACK_PACKAGE_NAME calderix-drive)
set(CPACK_PACKAGE_VENDOR Calderix)
set(CPACK_INCLUDE_TOPLEVEL_DIRECTORY OFF)
set(CPACK_THREADS 2)
string(TOLOWER "${CMAKE_SYSTEM_NAME}-${CMAKE_SYSTEM_PROCESSOR}" CALDERIX_PACKAGE_SYSTEM)
set(CPACK_PROJECT_CONFIG_FILE "${PROJECT_BINARY_DIR}/CalderixCPackConfig.cmake")
file(GENERATE OUTPUT "${CPACK_PROJECT_CONFIG_FILE}" CONTENT "\
execute_process(COMMAND \"$<TARGET_FILE:vpkpack>\" --print-build \"${CALDERIX_BUNDLE_INFO}\"
  OUTPUT_VARIABLE build RESULT_VARIABLE result OUTPUT_STRIP_TRAILING_WHITESPACE)
if(NOT result EQUAL 0)
  message(FATAL_ERROR \"no client build number in ${CALDERIX_BUNDLE_INFO}; build the project first\")
endif()
set(CPACK_PACKAGE_FILE_NAME \"calderix-drive-\${build}-${CALDERIX_PACKAGE_SYSTEM}\")
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
  set(ENV{SOURCE_DATE_EPOCH} 0)
endif()
")
include(CPack)
