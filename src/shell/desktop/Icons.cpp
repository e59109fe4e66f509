// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/Icons.h"

#include <QBuffer>
#include <QFile>
#include <QGuiApplication>
#include <QHash>
#include <QIconEngine>
#include <QImageReader>
#include <QMimeDatabase>
#include <QPainter>
#include <QPalette>
#include <QPixmapCache>

#include <optional>

namespace quorvin {

namespace {

constexpr int kLargeSide = 64; ///< pixels

QString bundledPath(const QString &name)
{
    return QStringLiteral(":/icons/%1.svg").arg(name);
}

QColor colorFor(QIcon::Mode mode)
{
    const QPalette palette = QGuiApplication::palette();
    if (mode == QIcon::Disabled)
        return palette.color(QPalette::Disabled, QPalette::WindowText);
    return palette.color(mode == QIcon::Selected ? QPalette::HighlightedText : QPalette::WindowText);
}

/// Draws a picture of black strokes in the colour of text.
class SymbolIconEngine final : public QIconEngine {
public:
    explicit SymbolIconEngine(QString name) : _name(std::move(name)) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        const qreal ratio = painter->device()->devicePixelRatioF();
        QPixmap drawn = pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state);
        drawn.setDevicePixelRatio(ratio);
        painter->drawPixmap(rect, drawn);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State) override
    {
        const QColor color = colorFor(mode);
        const QString key = QStringLiteral("quorvin-%1-%2x%3-%4")
                                .arg(_name)
                                .arg(size.width())
                                .arg(size.height())
                                .arg(color.rgba());
        QPixmap drawn;
        if (!QPixmapCache::find(key, &drawn)) {
            drawn = QPixmap::fromImage(draw(size, color));
            QPixmapCache::insert(key, drawn);
        }
        return drawn;
    }

    QIconEngine *clone() const override { return new SymbolIconEngine(_name); }
    QString key() const override { return QStringLiteral("QuorvinSymbol"); }
    bool isNull() override { return false; }

private:
    QImage draw(const QSize &size, const QColor &color) const
    {
        QFile file(bundledPath(_name));
        if (size.isEmpty() || !file.open(QIODevice::ReadOnly))
            return {};
        QByteArray svg = file.readAll().replace("#000000", color.name().toLatin1());
        // What is a firm line in a button would be a bar in a large picture.
        if (std::min(size.width(), size.height()) >= kLargeSide)
            svg.replace("stroke-width=\"1.2\"", "stroke-width=\"0.4\"");
        QBuffer buffer(&svg);
        QImageReader reader(&buffer, "svg");
        const int side = std::min(size.width(), size.height());
        reader.setScaledSize(QSize(side, side));
        return reader.read();
    }

    QString _name;
};

/// The icon of that name in the desktop's theme, which is null where it has none.
class ThemeIconEngine final : public QIconEngine {
public:
    explicit ThemeIconEngine(QString name) : _name(std::move(name)) { }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        icon().paint(painter, rect, Qt::AlignCenter, mode, state);
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        return icon().pixmap(size, 1.0, mode, state);
    }

    QPixmap scaledPixmap(const QSize &size, QIcon::Mode mode, QIcon::State state, qreal ratio) override
    {
        return icon().pixmap((QSizeF(size) / ratio).toSize(), ratio, mode, state);
    }

    QIconEngine *clone() const override { return new ThemeIconEngine(_name); }
    QString key() const override { return QStringLiteral("QuorvinTheme"); }
    bool isNull() override { return icon().isNull(); }

private:
    const QIcon &icon()
    {
        if (!_icon)
            _icon = QIcon::fromTheme(_name);
        return *_icon;
    }

    QString _name;
    std::optional<QIcon> _icon;
};

QString bundledNameFor(const QString &mimeName)
{
    const QString name = mimeName.section(u'/', 0, 0) + QLatin1String("-x-generic");
    return QFile::exists(bundledPath(name)) ? name : QStringLiteral("text-x-generic");
}

QIcon makeMimeIcon(const QMimeType &type)
{
    for (const QString &name : {type.iconName(), type.genericIconName()}) {
        if (QIcon icon = QIcon::fromTheme(name); !icon.isNull())
            return icon;
    }
    return symbolIcon(bundledNameFor(type.name()));
}

} // namespace

QIcon symbolIcon(const QString &name)
{
    return QIcon(new SymbolIconEngine(name));
}

QIcon commandIcon(const QString &name)
{
    return QFile::exists(bundledPath(name)) ? symbolIcon(name) : QIcon(new ThemeIconEngine(name));
}

QIcon mimeIcon(const QString &mimeName)
{
    static QHash<QString, QIcon> known;
    auto found = known.constFind(mimeName);
    if (found == known.constEnd())
        found = known.insert(mimeName, makeMimeIcon(QMimeDatabase().mimeTypeForName(mimeName)));
    return *found;
}

QIcon fileNameIcon(const QString &fileName)
{
    return mimeIcon(QMimeDatabase().mimeTypeForFile(fileName, QMimeDatabase::MatchExtension).name());
}

} // namespace quorvin
