// SPDX-License-Identifier: MIT
#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QMouseEvent>
#include <QPointF>
#include <QString>

/// What Qt 5 and Qt 6 name differently: the till is built with either.
namespace QtNames {
/// Where \a event happened in its widget, in pixels and parts of a pixel.
inline QPointF position(const QMouseEvent& event)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return event.localPos();
#else
    return event.position();
#endif
}

/// Has pictures on buttons and in boxes drawn with all the pixels that a large till has for them.
inline void useSharpPictures()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// The folder of Qt's own translations.
inline QString translationsFolder()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
}
} // namespace QtNames
