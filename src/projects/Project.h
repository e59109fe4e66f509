// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>
#include <QStringList>

#include <map>
#include <optional>
#include <vector>

namespace quorvin {

inline constexpr QLatin1String kProjectExtension("quorvinproj");
inline constexpr QLatin1String kProjectMimeType("application/x-quorvin-project");

/// Whether a path is that of a project: by its extension alone, in any mix of upper and lower case.
bool isProjectPath(const QString &path);

/// How many components a path has, as the list shows it.
int shownComponentsOf(const QString &shownPath);

/// A moment as the file system has it.
struct FileTime {
    qint64 seconds = 0; ///< since 1970
    qint32 nanoseconds = 0; ///< of the second, 0 to 999,999,999

    bool operator==(const FileTime &) const = default;
};

/// What a project remembers of a file, of the file that symbolic links lead to.
struct KeptFacts {
    std::optional<quint64> size = {}; ///< bytes
    std::optional<FileTime> modified = {};
    std::optional<FileTime> created = {}; ///< absent also where the file system does not record it
    QString sha1 = {}; ///< lower-case hex; "" where no digest is kept

    bool operator==(const KeptFacts &) const = default;
};

struct ProjectFile {
    QString path = {}; ///< absolute
    int shownComponents = 1; ///< how many of the last components of its path the list shows
    KeptFacts facts = {};

    /// The path as the list shows it.
    QString shownPath() const;

    bool operator==(const ProjectFile &) const = default;
};

/// A folder that files of the project lie in, and what else lay there when the project was saved.
struct ProjectFolder {
    QString path = {}; ///< absolute
    QStringList others = {}; ///< names of files that are none of the project's

    bool operator==(const ProjectFolder &) const = default;
};

/// A parameter that is watched from file to file.
struct ProjectWatch {
    QString group = {};
    quint64 stream = 0;
    QString key = {};
    QString label = {};

    bool operator==(const ProjectWatch &) const = default;
};

/// What narrows the list.
struct ProjectFilter {
    QString rule = {}; ///< as a text, which may be no rule of this version
    QString name = {};
    QString content = {};
    bool hideUnknown = false;

    bool operator==(const ProjectFilter &) const = default;
};

/// How files are compared.
struct ProjectComparison {
    std::optional<QStringList> columns
        = {}; ///< paths in their order, without those that are closed; absent: all
    QString rows = {}; ///< "all", "differing", "equal"; "" not told

    bool operator==(const ProjectComparison &) const = default;
};

/// The list of a window and how it is looked at.
struct Project {
    std::vector<ProjectFile> files = {}; ///< in the order of the list
    std::vector<ProjectFolder> folders = {}; ///< where new files are looked for; none: nowhere
    QString tab = {}; ///< "general", "extended", "comparison", "custom"; "" not told
    ProjectFilter filter = {};
    std::vector<ProjectWatch> watched = {};
    std::map<QString, QString> rules = {}; ///< texts of kept rules by their names
    ProjectComparison comparison = {};

    bool operator==(const Project &) const = default;
};

/// Bounds of a project, read and written.
inline constexpr qsizetype kMostProjectBytes = qsizetype{64} << 20;
inline constexpr std::size_t kMostProjectFiles = 1'000'000;
/// Of all other entries of its lists together.
inline constexpr std::size_t kMostProjectEntries = 1'000'000;

} // namespace quorvin
