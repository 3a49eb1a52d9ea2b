// SPDX-License-Identifier: MIT
// escpos-page BYTES OUT.png OUT.txt: what the printer would print for the bytes in a file.
#include "tests/support/EscPosPagePicture.h"

#include <QGuiApplication>
#include <QImage>

#include <cstdlib>
#include <fstream>
#include <iostream>
#include <iterator>

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    const QGuiApplication application(argc, argv);
    if (argc != 4) {
        std::cerr << "usage: escpos-page BYTES OUT.png OUT.txt\n";
        return EXIT_FAILURE;
    }
    std::ifstream file(argv[1], std::ios::binary);
    if (!file) {
        std::cerr << "escpos-page: cannot read " << argv[1] << "\n";
        return EXIT_FAILURE;
    }
    const std::string job{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    const EscPosPage page(job);
    std::ofstream text(argv[3]);
    for (const auto& line : page.styledLines()) {
        text << line << "\n";
    }
    if (!pictureOf(page).save(QString::fromLocal8Bit(argv[2])) || !text.flush()) {
        std::cerr << "escpos-page: cannot write the page\n";
        return EXIT_FAILURE;
    }
    for (const auto& remark : page.remarks()) {
        std::cerr << remark << "\n";
    }
    for (const auto& complaint : page.complaints()) {
        std::cerr << "escpos-page: " << complaint << "\n";
    }
    return page.complaints().empty() ? EXIT_SUCCESS : EXIT_FAILURE;
}
