// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "model/DigestProgress.h"
#include "process/Job.h"
#include "process/Values.h"

#include <QByteArray>

#include <optional>
#include <variant>
#include <vector>

namespace quorvin {

/// What a reader and its parent say to each other: frames, each the length of its content in four bytes and
/// the content, which is one message. The parent begins with what the reader may read. For each job it sends
/// an order; the reader says when it is done with it, and then what came of it: so the next order is on its
/// way while the answer is still put together.

/// The descriptor under which a reader finds its end of the socket.
inline constexpr int kReaderSocket = 3;
/// And that of the memory in which it counts its jobs.
inline constexpr int kReaderCounter = 4;
/// A reader that could not get memory ends with this status.
inline constexpr int kOutOfMemoryStatus = 77;

/// What of its log a reader is to send; the bits of its last argument.
enum LogPart : quint32 {
    LogPhrases = 1, ///< those of this system
    LogLibraries = 2, ///< what the libraries say
};

/// The first words of the parent.
struct ReaderRoots {
    std::vector<QString> paths; ///< of files and folders that the reader may read
    QString through; ///< a file that is to be read wherever links on its way lead; may be empty
    QString writable = {}; ///< the folder of a writer; "" for a reader
    quint32 exifToolMiB = 0; ///< memory for an exiftool beside the reader; 0 for none
};

struct JobOrder {
    quint32 number = 0; ///< counted from 1 for each reader
    JobRequest request;
};

/// The first words of a reader.
struct Greeting {
    static constexpr quint32 kMostBytes = 256 << 10;
    static constexpr quint32 kMagic = 0x51564e32;

    quint32 magic = kMagic;
    quint32 guardParts = 0; ///< as `raiseGuard` gives them
    std::vector<QString> reached = {}; ///< what the way `through` needs beside the roots
    qint32 exifTool = 0; ///< the process number of that beside the reader; 0 for none
};

struct JobDone {
    static constexpr quint32 kMostBytes = 64;

    quint32 job = 0; ///< number of its order, as in those below
};

/// The reader may not read the file of the job, since a link leads to it from its roots.
struct JobOutside {
    static constexpr quint32 kMostBytes = 64;

    quint32 job = 0;
};

struct JobFailed {
    static constexpr quint32 kMostBytes = 4096;

    quint32 job = 0;
    Error error;
};

struct EncodedRecord {
    static constexpr quint32 kMostRecord = 16 << 20;
    static constexpr quint32 kMostBytes = kMostRecord + 64;

    quint32 job = 0;
    QByteArray record; ///< made by the reader's one `RecordEncoder`; at most `kMostRecord`
};

struct EncodedReport {
    static constexpr quint32 kMostReport = 256U << 20;
    static constexpr quint32 kMostBytes = kMostReport + 64;

    quint32 job = 0;
    QByteArray text; ///< UTF-8; at most `kMostReport`
};

struct EncodedRemoval {
    static constexpr quint32 kMostBytes = 4 << 20;

    quint32 job = 0;
    RemovalResult result;
};

struct FilesSaved {
    static constexpr quint32 kMostBytes = 16 << 20;

    quint32 job = 0;
    SavedFiles files;
};

struct EncodedPicture {
    static constexpr quint32 kMostBytes
        = Picture::kMostSide * Picture::kMostSide * Picture::kBytesOfPixel + 64;

    quint32 job = 0;
    Picture picture;
};

/// Digests of the job's file have come so far: each time further. The job's limits count anew from then on.
struct JobProgress {
    static constexpr quint32 kMostBytes = 64;

    quint32 job = 0;
    DigestProgress progress;
};

/// A line for the parent's log. May come at any time.
struct LogLine {
    static constexpr quint32 kMostBytes = 4096;
    static constexpr qsizetype kMostCharacters = 2000;

    bool isOfLibrary = false; ///< what a library says on its own, else a phrase of this system
    QString text; ///< at most `kMostCharacters`
};

using ReaderMessage = std::variant<Greeting, JobDone, JobOutside, JobFailed, EncodedRecord, EncodedReport,
                                   LogLine, JobProgress, EncodedRemoval, FilesSaved, EncodedPicture>;

inline constexpr quint32 kMostOrderBytes = 1 << 20;

/// How long the content of a message may be that begins with this byte; 0 when none does.
quint32 mostBytesOfMessage(quint8 kind);

QByteArray frameOf(const ReaderRoots &roots);
QByteArray frameOf(const JobOrder &order);
QByteArray frameOf(const ReaderMessage &message);
/// Absent for what is no message; trusts nothing.
std::optional<ReaderRoots> rootsOf(QByteArrayView content);
std::optional<JobOrder> orderOf(QByteArrayView content);
std::optional<ReaderMessage> messageOf(QByteArrayView content);

} // namespace quorvin
