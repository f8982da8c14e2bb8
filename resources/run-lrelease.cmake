# Compiles one translation source into its catalogue. lrelease reports
# duplicate or malformed entries as warnings and still exits 0, which would
# ship a catalogue that silently lost texts, so any warning fails the build.
#
#   cmake -DLRELEASE=<exe> -DTS=<file.ts> -DQM=<file.qm> -P run-lrelease.cmake
foreach(_var LRELEASE TS QM)
  if(NOT ${_var})
    message(FATAL_ERROR "run-lrelease.cmake: ${_var} is not set")
  endif()
endforeach()

execute_process(
  COMMAND "${LRELEASE}" "${TS}" -qm "${QM}"
  RESULT_VARIABLE _rc
  OUTPUT_VARIABLE _out
  ERROR_VARIABLE _out)

# The "Generated N translation(s) (F finished and U unfinished)" summary is
# kept in the build log so that untranslated rows stay visible.
string(STRIP "${_out}" _out)
message("${_out}")

if(NOT _rc EQUAL 0 OR _out MATCHES "[Ww]arning|[Ee]rror")
  file(REMOVE "${QM}")
  message(FATAL_ERROR "lrelease reported problems in ${TS} (exit status ${_rc})")
endif()
