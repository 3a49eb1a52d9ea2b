// SPDX-License-Identifier: MIT
#include "backoffice/menu/CopyProcess.h"

int main(int argc, char** argv) { return CopyProcess::asked(argc, argv).value_or(EXIT_FAILURE); }
