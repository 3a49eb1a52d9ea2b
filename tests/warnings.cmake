# SPDX-License-Identifier: MIT
# Fails when a library passes its warnings on to whoever links it, or when a newer compiler's warning
# would stop a build without a preset.
if(HANDED_ON MATCHES "-W")
  message(FATAL_ERROR "the libraries hand on: ${HANDED_ON}")
endif()
file(GLOB lists ${ROOT}/cmake/*.cmake ${ROOT}/*/CMakeLists.txt ${ROOT}/*/*/CMakeLists.txt)
foreach(list IN LISTS lists ITEMS ${ROOT}/CMakeLists.txt)
  file(STRINGS ${list} errors REGEX "-Werror|WARNING_AS_ERROR")
  if(errors)
    message(FATAL_ERROR "${list} makes errors of warnings; that is for the presets: ${errors}")
  endif()
endforeach()
