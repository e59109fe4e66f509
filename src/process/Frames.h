// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "process/Job.h"

#include <QByteArray>

#include <optional>

namespace quorvin {

/// What a reader and its parent say to each other: frames, each the length of its content in four bytes and
/// the content. Ahead of each reply goes one byte more, as soon as the job is done: so the next request is on
/// its way while the reply is still put together.

/// The descriptor under which a reader finds its end of the socket.
inline constexpr int kReaderSocket = 3;
/// And that of the memory in which it counts its jobs.
inline constexpr int kReaderCounter = 4;
/// A reader that could not get memory ends with this status.
inline constexpr int kOutOfMemoryStatus = 77;

inline constexpr quint32 kMostRequestBytes = 1 << 20;
inline constexpr quint32 kMostReplyBytes = 256U << 20;
inline constexpr qsizetype kMostRecordBytes = 64 << 20;
inline constexpr char kDoneMark = 1;
inline constexpr quint32 kHelloMagic = 0x51564e31;

/// The first frame of a reader: that it is one, and the parts of its guard.
QByteArray helloFrame(quint32 guardParts);
std::optional<quint32> guardPartsOfHello(QByteArrayView content);

QByteArray requestFrame(const Job &job);
std::optional<Job> jobOfRequest(QByteArrayView content);

enum class ReplyKind : quint8 { Record, Report, Failure };

/// `content` is an encoded record, the UTF-8 of a report, or that of a reason.
QByteArray replyFrame(ReplyKind kind, QByteArrayView content);

/// The content behind its length.
QByteArray frameOf(QByteArrayView content);

} // namespace quorvin
