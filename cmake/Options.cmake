# SPDX-License-Identifier: MIT
# One place for what every target is compiled with.
add_library(vendel_options INTERFACE)
target_include_directories(vendel_options INTERFACE ${PROJECT_SOURCE_DIR})
target_compile_options(vendel_options INTERFACE
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wformat=2 -Werror
  # QSKIP and friends expand to variadic macros without arguments.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)

if(VENDEL_SANITIZE)
  target_compile_options(vendel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vendel_options INTERFACE -fsanitize=address,undefined)
endif()

if(VENDEL_COVERAGE)
  target_compile_options(vendel_options INTERFACE --coverage -fno-inline -fprofile-update=atomic)
  target_link_options(vendel_options INTERFACE --coverage)
endif()

# A library of one folder: its sources are listed, what it may use is its link list. A changed form
# is known before the build starts: automatic uic tells Ninja only of the build after it.
function(vendel_library name)
  cmake_parse_arguments(ARG "" "" "SOURCES;USES" ${ARGN})
  set(forms ${ARG_SOURCES})
  list(TRANSFORM forms REPLACE "\\.cpp$" ".ui")
  foreach(form IN LISTS forms)
    if(EXISTS ${CMAKE_CURRENT_SOURCE_DIR}/${form})
      set_property(SOURCE ${ARG_SOURCES} APPEND PROPERTY
        OBJECT_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/${form})
    endif()
  endforeach()
  add_library(${name} STATIC ${ARG_SOURCES})
  target_link_libraries(${name} PUBLIC vendel_options ${ARG_USES})
endfunction()

# The same for a library that uses Qt.
function(vendel_qt_library name)
  vendel_library(${name} ${ARGN})
  target_compile_definitions(${name} PRIVATE QT_NO_CAST_FROM_ASCII QT_NO_CAST_TO_ASCII)
endfunction()
