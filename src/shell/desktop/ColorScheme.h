// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QObject>
#include <QPalette>
#include <QString>

class QDBusVariant;

namespace quorvin {

/// Light or dark: as the desktop says, live, or as the user forces it. Sets palette and style of the
/// application, and leaves both alone where they are right already. Main thread.
class ColorScheme : public QObject {
    Q_OBJECT
public:
    /// What "light", "dark" and "system" mean; anything else is "system".
    enum class Wish { System, Light, Dark };
    static Wish wishFrom(const QString &text);

    /// Takes the palette and the style of the application as the desktop's own.
    explicit ColorScheme(QObject *parent = nullptr);
    /// Gives the application both back.
    ~ColorScheme() override;

    /// The environment variable QUORVIN_COLOR_SCHEME wins over `setting`.
    void follow(const QString &setting);

    static bool isDark(const QPalette &palette);
    /// What is used where the desktop has no palette of that shade.
    static QPalette ownPalette(bool dark);

private:
    Q_SLOT void portalSettingChanged(const QString &group, const QString &key, const QDBusVariant &value);
    void askPortal();
    void apply();
    void setStyle(const QString &name, bool hasOutlinedBoxes);

    QPalette _desktopPalette;
    QString _desktopStyle;
    QString _style; ///< that is set; "" before it is first set for a layout from the right
    bool _hasOutlinedBoxes = false; ///< as it is set
    Wish _wish = Wish::System;
    Wish _portal = Wish::System; ///< System: the portal has no opinion, or there is none
    bool _asked = false;
};

} // namespace quorvin
