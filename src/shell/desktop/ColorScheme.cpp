// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/desktop/ColorScheme.h"

#include "shell/desktop/BoxStyle.h"
#include "shell/desktop/Contrast.h"
#include "shell/desktop/OwnDirectionStyle.h"

#include <QApplication>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>
#include <QGuiApplication>
#include <QStyle>
#include <QStyleFactory>

#include <array>

namespace quorvin {

namespace {

constexpr QLatin1String kService("org.freedesktop.portal.Desktop");
constexpr QLatin1String kPath("/org/freedesktop/portal/desktop");
constexpr QLatin1String kInterface("org.freedesktop.portal.Settings");
constexpr QLatin1String kGroup("org.freedesktop.appearance");
constexpr QLatin1String kKey("color-scheme");

constexpr QLatin1String kPlainStyle("fusion");

struct Shade {
    QPalette::ColorRole role;
    QRgb light;
    QRgb dark;
    QRgb disabledLight; ///< 0: the same
    QRgb disabledDark;
};

constexpr std::array kShades{
    Shade{QPalette::Window, 0xfff4f4f5, 0xff2a2b2e, 0, 0},
    Shade{QPalette::WindowText, 0xff1b1c1e, 0xffe9eaec, 0xff686a6e, 0xffa0a2a7},
    Shade{QPalette::Base, 0xffffffff, 0xff1e1f22, 0xfff4f4f5, 0xff2a2b2e},
    Shade{QPalette::AlternateBase, 0xfff0f1f3, 0xff26272a, 0, 0},
    Shade{QPalette::Text, 0xff1b1c1e, 0xffe9eaec, 0xff686a6e, 0xffa0a2a7},
    Shade{QPalette::Button, 0xfff0f0f2, 0xff35363a, 0, 0},
    Shade{QPalette::ButtonText, 0xff1b1c1e, 0xffe9eaec, 0xff686a6e, 0xffa0a2a7},
    Shade{QPalette::BrightText, 0xffffffff, 0xffffffff, 0, 0},
    Shade{QPalette::ToolTipBase, 0xffffffff, 0xff3a3b40, 0, 0},
    Shade{QPalette::ToolTipText, 0xff1b1c1e, 0xffe9eaec, 0, 0},
    Shade{QPalette::Highlight, 0xff2f6fa7, 0xff3a79af, 0xffb9bbbf, 0xff55575c},
    Shade{QPalette::HighlightedText, 0xffffffff, 0xffffffff, 0xff1b1c1e, 0},
    Shade{QPalette::Link, 0xff1f5f99, 0xff7db7ea, 0, 0},
    Shade{QPalette::LinkVisited, 0xff6a4a8c, 0xffb79be0, 0, 0},
    Shade{QPalette::Light, 0xffffffff, 0xff45464b, 0, 0},
    Shade{QPalette::Midlight, 0xffe7e7ea, 0xff3b3c41, 0, 0},
    Shade{QPalette::Mid, 0xffbcbdc1, 0xff17181a, 0, 0},
    Shade{QPalette::Dark, 0xff9b9da2, 0xff1a1b1d, 0, 0},
    Shade{QPalette::Shadow, 0xff5c5e63, 0xff0c0c0d, 0, 0},
};

} // namespace

QPalette ColorScheme::ownPalette(bool dark)
{
    QPalette palette;
    for (const Shade &shade : kShades) {
        const QColor color(dark ? shade.dark : shade.light);
        const QRgb disabled = dark ? shade.disabledDark : shade.disabledLight;
        palette.setColor(QPalette::All, shade.role, color);
        if (disabled != 0)
            palette.setColor(QPalette::Disabled, shade.role, QColor(disabled));
    }
    return withOwnRoles(palette);
}

ColorScheme::ColorScheme(QObject *parent)
    : QObject(parent),
      _desktopPalette(QApplication::palette()),
      _desktopStyle(QApplication::style()->name()),
      _style(QGuiApplication::isRightToLeft() ? QString() : _desktopStyle)
{
}

ColorScheme::~ColorScheme()
{
    // A style that stands before another one has no name.
    if (QApplication::style()->name() != _desktopStyle)
        QApplication::setStyle(QStyleFactory::create(_desktopStyle));
    QApplication::setPalette(_desktopPalette);
}

ColorScheme::Wish ColorScheme::wishFrom(const QString &text)
{
    if (text == QLatin1String("dark"))
        return Wish::Dark;
    return text == QLatin1String("light") ? Wish::Light : Wish::System;
}

bool ColorScheme::isDark(const QPalette &palette)
{
    return palette.color(QPalette::Window).lightness() < palette.color(QPalette::WindowText).lightness();
}

void ColorScheme::follow(const QString &setting)
{
    _wish = wishFrom(qEnvironmentVariable("QUORVIN_COLOR_SCHEME", setting));
    if (_wish == Wish::System && !std::exchange(_asked, true))
        askPortal();
    apply();
}

void ColorScheme::askPortal()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    if (!bus.isConnected())
        return;
    bus.connect(kService, kPath, kInterface, QStringLiteral("SettingChanged"), this,
                SLOT(portalSettingChanged(QString, QString, QDBusVariant)));
    QDBusMessage call = QDBusMessage::createMethodCall(kService, kPath, kInterface, QStringLiteral("Read"));
    call << QString(kGroup) << QString(kKey);
    auto *watcher = new QDBusPendingCallWatcher(bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            portalSettingChanged(kGroup, kKey, reply.value());
    });
}

void ColorScheme::portalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value)
{
    if (group != kGroup || key != kKey)
        return;
    QVariant inner = value.variant();
    while (inner.canConvert<QDBusVariant>())
        inner = inner.value<QDBusVariant>().variant();
    constexpr std::array kWishes{Wish::System, Wish::Dark, Wish::Light};
    const uint choice = inner.toUInt();
    _portal = choice < kWishes.size() ? kWishes[choice] : Wish::System;
    apply();
}

void ColorScheme::setStyle(const QString &name, bool hasOutlinedBoxes)
{
    if (_style == name && _hasOutlinedBoxes == hasOutlinedBoxes)
        return;
    _style = name;
    _hasOutlinedBoxes = hasOutlinedBoxes;
    QStyle *style = hasOutlinedBoxes ? new BoxStyle(name) : QStyleFactory::create(name);
    QApplication::setStyle(QGuiApplication::isRightToLeft() ? new OwnDirectionStyle(style) : style);
}

void ColorScheme::apply()
{
    const Wish wish = _wish == Wish::System ? _portal : _wish;
    const bool dark = wish == Wish::System ? isDark(_desktopPalette) : wish == Wish::Dark;
    const bool desktopFits = dark == isDark(_desktopPalette);
    // A style may draw with colours of its own; the one that takes all from the palette goes with ours.
    const QString style = desktopFits ? _desktopStyle : QString(kPlainStyle);
    setStyle(style, dark && style == kPlainStyle);
    const bool desktopIsPlain = desktopFits && _desktopStyle == kPlainStyle;
    QApplication::setPalette(desktopFits && !desktopIsPlain ? withOwnRoles(_desktopPalette)
                                                            : ownPalette(dark));
}

} // namespace quorvin
