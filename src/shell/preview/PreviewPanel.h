// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/FrameChannel.h"
#include "process/PanelFrames.h"

#include <QObject>
#include <QPointer>
#include <QString>
#include <QTimer>

#include <chrono>
#include <memory>
#include <optional>

class QProcess;

namespace quorvin {

class LiveSettings;
enum class Setting;

/// The panel that shows a file itself, as all windows of a run share it. It is a program of its own, which is
/// started when it is first wanted and stays ready from then on: what its decoders do to it is not done to
/// the windows. It ends with this object, and in every other end of this program. Main thread.
class PreviewPanel : public QObject {
    Q_OBJECT
public:
    /// So long the panel may take for an order before it is ended.
    static constexpr std::chrono::milliseconds kPatience{15'000};

    /// `settings` must outlive the panel. `program` is a path; "" is the one beside this program.
    explicit PreviewPanel(LiveSettings &settings, QString program = {}, QObject *parent = nullptr);
    ~PreviewPanel() override;

    bool isOpen() const { return _isOpen; }
    /// All that was asked of it is done, as far as it says.
    bool isSettled() const { return _done == _sent && !_next; }
    /// For whom it was opened last; null when that one is gone.
    const QObject *user() const { return _user; }
    /// Of the program; 0 while there is none.
    qint64 processId() const;
    void setPatience(std::chrono::milliseconds patience) { _patience.setInterval(patience); }

    /// Shows the file in front, and above `window`, which is the display server's number for one, or 0.
    void open(QObject *user, const QString &path, quint64 window = 0);
    /// An open panel shows that user's file in place of the one before.
    void follow(QObject *user, const QString &path, quint64 window = 0);
    void close();

Q_SIGNALS:
    /// It was opened or closed, or has another user.
    void stateDidChange();
    /// The user has closed it with a key, and wants the keyboard back.
    void closedByKey();
    /// A key that the panel has no use for.
    void keyPressed(const quorvin::PanelKey &key);
    /// The panel is closed for that reason, which is a sentence. The next `open` starts it anew.
    void failed(const QString &sentence);

private:
    bool start();
    void showWhenFree(const PanelFile &file);
    template <typename Order>
    void send(Order order);
    void sendLook();
    bool take(QByteArrayView content);
    bool take(const PanelDone &done);
    bool take(const PanelClosed &closed);
    bool take(const PanelKey &key);
    bool take(const PanelKept &kept);
    void fail(const QString &sentence);
    void end();
    void setOpen(bool isOpen);
    void settingDidChange(Setting setting);
    QString fileName() const;

    LiveSettings &_settings;
    QString _program;
    QPointer<QObject> _user;
    QProcess *_process = nullptr;
    std::unique_ptr<FrameChannel> _channel; ///< there is one as long as there is a process
    quint32 _sent = 0; ///< number of the last order
    quint32 _done = 0; ///< and of the last one that is obeyed
    quint32 _opening = 0; ///< and of the last one that opens the panel
    std::optional<PanelFile> _next; ///< goes out once all orders are obeyed
    QString _path; ///< shown last
    QTimer _patience;
    bool _isOpen = false;
};

} // namespace quorvin
