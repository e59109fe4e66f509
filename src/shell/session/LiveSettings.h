// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/Settings.h"

#include <QObject>

namespace quorvin {

/// The one door to the settings in the window program: whoever changes one does it here, and whoever shows
/// one follows the signal. Main thread.
class LiveSettings : public QObject {
    Q_OBJECT
public:
    /// `settings` must outlive this object.
    explicit LiveSettings(Settings &settings, QObject *parent = nullptr);

    bool boolean(Setting setting) const { return _settings.boolean(setting); }
    int integer(Setting setting) const { return _settings.integer(setting); }
    double real(Setting setting) const { return _settings.real(setting); }
    QString string(Setting setting) const { return _settings.string(setting); }
    /// As it is written.
    QString text(Setting setting) const { return _settings.text(setting); }
    /// For the core, and for other threads: to be read, as all of it may be, from anywhere.
    const Settings &values() const { return _settings; }

    /// Sets a value for this run and for those to come. `value` is of the setting's type, or its text; any
    /// other changes nothing.
    void set(Setting setting, const QVariant &value);
    /// Back to the value that it has for a new user.
    void reset(Setting setting) { set(setting, QString(settingRow(setting).defaultText)); }
    bool isDefault(Setting setting) const { return text(setting) == settingRow(setting).defaultText; }
    /// Sets a value from "KEY=VALUE" for this run alone; the error says what is wrong with that text.
    Expected<void> overrideFrom(const QString &assignment);
    /// A boolean setting becomes what it is not.
    void toggle(Setting setting) { set(setting, !boolean(setting)); }

Q_SIGNALS:
    /// The setting has another value than before.
    void changed(quorvin::Setting setting);

private:
    Settings &_settings;
};

} // namespace quorvin
