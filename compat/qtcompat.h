#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QMetaType>
#include <QPoint>
#include <QPointF>
#include <QRect>
#include <QRectF>
#include <QSize>
#include <QSizeF>
#include <QtGlobal>

/// What differs between Qt 5 and Qt 6. Everything else is written so that both take it.
namespace QtCompat {

/// `value` rounded to the nearest whole number, a half upward on both sides of 0: -0.5 gives 0,
/// -1.5 gives -1. Qt 5 rounds in this way; Qt 6 takes a negative half away from 0.
constexpr int rounded(double value)
{
    if (value >= 0.0) {
        return int(value + 0.5);
    }
    const int below = int(value - 1.0);
    return int(value - below + 0.5) + below;
}

/// QPointF::toPoint as in Qt 5.
constexpr QPoint toPoint(const QPointF& point)
{
    return QPoint(rounded(point.x()), rounded(point.y()));
}

/// QSizeF::toSize as in Qt 5.
constexpr QSize toSize(const QSizeF& size)
{
    return QSize(rounded(size.width()), rounded(size.height()));
}

/// QRectF::toRect as in Qt 5: each edge is rounded by itself. Qt 6 rounds the extents, so that its
/// right and bottom edges come out elsewhere.
constexpr QRect toRect(const QRectF& rect)
{
    return QRect(QPoint(rounded(rect.x()), rounded(rect.y())),
        QPoint(rounded(rect.x() + rect.width()) - 1, rounded(rect.y() + rect.height()) - 1));
}

/// Whether a type can be looked up by `name` at run time.
inline bool isTypeName(const char* name)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QMetaType::fromName(name).isValid();
#else
    return QMetaType::type(name) != QMetaType::UnknownType;
#endif
}

/// Lets the window system's scale apply, to windows and pixmaps: Qt 6 always does. Before the
/// application object is made.
inline void enableHighDpiScaling()
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// Folder of the translations that come with Qt itself.
inline QString translationsPath()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

/// Makes QImageReader (`Reader`, so that this header needs Qt Core alone) read images of up to
/// `mebibytes`. Qt 6 refuses some that Qt 5, which knows no limit, reads.
template <class Reader>
void setAllocationLimit(int mebibytes)
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    Reader::setAllocationLimit(mebibytes);
#else
    Q_UNUSED(mebibytes);
#endif
}

} // namespace QtCompat
