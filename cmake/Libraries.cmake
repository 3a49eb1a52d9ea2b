# SPDX-License-Identifier: MIT
# Qt's headers take most of a compiler's time: they are read once for the till's libraries, and once
# for the tests, which add Qt Test. The analysers read each source without them, so that it shows that
# it includes what it uses.
set(core_headers <QDateTime> <QFile> <QTemporaryDir> <QTranslator> <algorithm> <array> <exception>
  <functional> <memory> <optional> <span> <stdexcept> <string> <utility> <vector>)
set(window_headers <QApplication> <QComboBox> <QDialog> <QHeaderView> <QLabel> <QLineEdit>
  <QMainWindow> <QMessageBox> <QPushButton> <QStandardItemModel> <QTableView> <QTextEdit> <QTimer>)

# A target NAME whose precompiled HEADERS other targets reuse; it links the libraries USES. Those
# targets must have the same DEFINITIONS.
function(vendel_precompile name)
  cmake_parse_arguments(ARG "" "" "HEADERS;USES;DEFINITIONS" ${ARGN})
  file(CONFIGURE OUTPUT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp CONTENT "")
  add_library(${name} OBJECT ${CMAKE_CURRENT_BINARY_DIR}/${name}.cpp)
  set_target_properties(${name} PROPERTIES AUTOMOC OFF AUTOUIC OFF)
  target_link_libraries(${name} PRIVATE vendel_options ${ARG_USES})
  target_compile_definitions(${name} PRIVATE ${ARG_DEFINITIONS})
  target_precompile_headers(${name} PRIVATE ${ARG_HEADERS})
endfunction()

# Lets TARGET reuse the headers of vendel_precompile(NAME), if they are precompiled.
function(vendel_use_precompiled target name)
  if(VENDEL_PRECOMPILE)
    target_precompile_headers(${target} REUSE_FROM ${name})
    # ccache can then keep the objects.
    target_compile_options(${target} PRIVATE $<$<CXX_COMPILER_ID:GNU>:-fpch-preprocess>)
  endif()
endfunction()

# A library of one folder: its sources are listed, what it may use is its link list. A changed form
# is a dependency of its source: AUTOUIC reports it one build too late.
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
  vendel_use_precompiled(${name} vendel_headers)
endfunction()
