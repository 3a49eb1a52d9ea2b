# SPDX-License-Identifier: MIT
# Fails unless the English of the back office has every text of its sources, translated, and no other.
# LUPDATE is Qt's tool, WORK a folder to write into.
set(committed ${ROOT}/translations/gestion_en.ts)
set(updated ${WORK}/gestion_en.ts)
file(COPY_FILE ${committed} ${updated})
execute_process(COMMAND ${LUPDATE} -silent -I ${ROOT} -locations none ${ROOT}/backoffice -ts ${updated}
  RESULT_VARIABLE status OUTPUT_VARIABLE output ERROR_VARIABLE output)
if(NOT status EQUAL 0 OR NOT output STREQUAL "")
  message(FATAL_ERROR "lupdate says: ${output}")
endif()
file(STRINGS ${updated} wrong ENCODING UTF-8 REGEX "type=\"(unfinished|obsolete|vanished)\"")
list(LENGTH wrong count)
if(count GREATER 0)
  message(FATAL_ERROR "${count} texts lack their English, or are no text any more: run "
    "lupdate -I . -locations none backoffice -ts translations/gestion_en.ts")
endif()
