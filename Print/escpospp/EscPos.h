// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

/// A picture as dots: rows from top to bottom, dots from left to right, true is black.
using DotMatrix = std::vector<std::vector<bool>>;

/// The printer's commands as bytes, and the loading of pictures.
/// Source of the commands: ESC/POS command reference, TM-T20II.
namespace EscPos {
/// GS V 65 150: feeds 150 motion units beyond the cutting position, then cuts.
inline const std::string CUT{"\x1D\x56\x41\x96", 4};
/// GS @, which is not the ESC @ that initialises a printer.
inline const std::string RESET{"\x1D\x40", 2};
/// ESC M 0: 12 x 24 dots, 48 columns.
inline const std::string FONT_A{"\x1B\x4D\x00", 3};
/// ESC M 1: 9 x 17 dots, 64 columns.
inline const std::string FONT_B{"\x1B\x4D\x01", 3};
/// ESC - 0.
inline const std::string UNDERLINE_OFF{"\x1B\x2D\x00", 3};
/// ESC - 1: one dot thick.
inline const std::string UNDERLINE_1_DOT{"\x1B\x2D\x01", 3};
/// ESC - 2: two dots thick.
inline const std::string UNDERLINE_2_DOT{"\x1B\x2D\x02", 3};
/// ESC E 1.
inline const std::string BOLD_ON{"\x1B\x45\x01", 3};
/// ESC E 0.
inline const std::string BOLD_OFF{"\x1B\x45\x00", 3};
/// ESC E 2, with which receipts end bold text: the printer reads only bit 0 of the value.
inline const std::string RECEIPT_BOLD_OFF{"\x1B\x45\x02", 3};
/// ESC ! 48: double height and double width.
inline const std::string DOUBLE_SIZE{"\x1B\x21\x30", 3};
/// ESC ! 32: double width.
inline const std::string DOUBLE_WIDTH{"\x1B\x21\x20", 3};
/// ESC ! 2: single size, not bold, not underlined, font A. Bit 1 of the value means nothing.
inline const std::string NORMAL_TEXT{"\x1B\x21\x02", 3};
/// ESC a 1: centres this line and the next ones.
inline const std::string CENTRE{"\x1B\x61\x01", 3};
/// ESC a "0": starts lines at the left; the printer reads the digit like the value 0.
inline const std::string LEFT{"\x1B\x61\x30", 3};
/// ESC *: starts one band of a picture; the mode, the number of columns (two bytes, the lower
/// first) and the columns follow.
inline const std::string BITMAP{"\x1B\x2A", 2};
/// ESC 3 0: line spacing 0, so that the bands of a picture touch.
inline const std::string NO_LINE{"\x1B\x33\x00", 3};
/// ESC 2: default line spacing.
inline const std::string RESET_LINE{"\x1B\x32", 2};

/// The largest picture that loadImage decodes, in pixels: width times height.
inline constexpr long long maxPixels = 1LL << 24;

/// The picture in the file at \a path (PNG, BMP, JPEG, GIF or PNM; a GIF's first frame) as dots:
/// a pixel is black when 0.3 R + 0.59 G + 0.11 B is below 150.
/// Empty when it is not a regular file, cannot be read or decoded, or has more than maxPixels
/// pixels.
DotMatrix loadImage(const std::string& path);
} // namespace EscPos
