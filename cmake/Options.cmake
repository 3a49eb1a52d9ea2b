# SPDX-License-Identifier: MIT
# Warnings are set for the project's own folders only: they do not reach whoever links one of its
# libraries. The presets turn them into errors.
add_compile_options(
  -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor
  -Woverloaded-virtual -Wformat=2
  # QSKIP and friends expand to variadic macros without arguments.
  $<$<CXX_COMPILER_ID:Clang>:-Wno-gnu-zero-variadic-macro-arguments>)

# Amounts in single precision are the same to the digit on every processor: where one can multiply and
# add with a single rounding, it does not.
add_compile_options(-ffp-contract=off)

# What every target is compiled with, and everything that links it.
add_library(vendel_options INTERFACE)
target_include_directories(vendel_options INTERFACE ${PROJECT_SOURCE_DIR})
if(VENDEL_SANITIZE)
  target_compile_options(vendel_options INTERFACE
    -fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  target_link_options(vendel_options INTERFACE -fsanitize=address,undefined)
endif()

if(VENDEL_COVERAGE)
  target_compile_options(vendel_options INTERFACE --coverage -fno-inline -fprofile-update=atomic)
  target_link_options(vendel_options INTERFACE --coverage)
endif()
