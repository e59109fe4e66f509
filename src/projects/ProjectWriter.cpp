// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "projects/ProjectWriter.h"

#include "SBJson5/SBJson5StreamWriter.h"
#include "SBJson5/SBJson5StreamWriterDelegate.h"
#include "export/OutputBuffer.h"
#include "platform/AtomicFile.h"
#include "projects/FileTimes.h"
#include "projects/ProjectDraft.h"
#include "projects/ProjectPaths.h"

namespace quorvin {

namespace {

using namespace Qt::StringLiterals;

/// The members of one document, from the outermost object on. What is not told is left out.
class ProjectDocument final : private SBJson5StreamWriterDelegate {
public:
    ProjectDocument(QString folder, QIODevice &device) : _folder(std::move(folder)), _out(device) { }

    Expected<void> write(const Project &project)
    {
        _stream.writeObjectOpen();
        writeUtf8("format"_L1, kProjectFormat);
        writeNumber("version"_L1, kProjectVersion);
        writeText("tab"_L1, project.tab);
        writeFilter(project.filter);
        writeWatched(project.watched);
        writeRules(project.rules);
        writeComparison(project.comparison);
        writeFiles(project.files);
        writeFolders(project.folders);
        _stream.writeObjectClose();
        _out.put("\n");
        if (!_stream.error().isEmpty())
            return failure(_stream.error());
        if (_size > kMostProjectBytes)
            return failure(u"the project is larger than %1 MiB"_s.arg(kMostProjectBytes >> 20));
        return _out.flush();
    }

private:
    void writer(const SBJson5StreamWriter &, QByteArrayView appendBytes) override
    {
        _size += appendBytes.size();
        _out.put(appendBytes);
    }

    void writeUtf8(QLatin1String key, QByteArrayView utf8)
    {
        if (utf8.isEmpty())
            return;
        _stream.writeString(key);
        _stream.writeUtf8String(utf8);
    }
    void writeText(QLatin1String key, const QString &text) { writeUtf8(key, text.toUtf8()); }
    void writeNumber(QLatin1String key, quint64 number)
    {
        _stream.writeString(key);
        _stream.writeNumber(number);
    }
    void writeTime(QLatin1String key, const std::optional<FileTime> &time)
    {
        if (time)
            writeUtf8(key, textOfFileTime(*time));
    }
    void openList(QLatin1String key)
    {
        _stream.writeString(key);
        _stream.writeArrayOpen();
    }

    void writeFiles(const std::vector<ProjectFile> &files)
    {
        openList("files"_L1);
        for (const ProjectFile &file : files) {
            _stream.writeObjectOpen();
            writeUtf8("url"_L1, projectUrl(file.path, _folder));
            if (file.shownComponents > 1)
                writeNumber("shown"_L1, static_cast<quint64>(file.shownComponents));
            if (file.facts.size)
                writeNumber("size"_L1, *file.facts.size);
            writeTime("modified"_L1, file.facts.modified);
            writeTime("created"_L1, file.facts.created);
            writeText("sha1"_L1, file.facts.sha1);
            _stream.writeObjectClose();
        }
        _stream.writeArrayClose();
    }

    void writeFolders(const std::vector<ProjectFolder> &folders)
    {
        if (folders.empty())
            return;
        openList("folders"_L1);
        for (const ProjectFolder &folder : folders) {
            _stream.writeObjectOpen();
            writeUtf8("url"_L1, projectUrl(folder.path, _folder));
            if (!folder.others.isEmpty()) {
                openList("others"_L1);
                for (const QString &name : folder.others)
                    _stream.writeUtf8String(escapedName(name));
                _stream.writeArrayClose();
            }
            _stream.writeObjectClose();
        }
        _stream.writeArrayClose();
    }

    void writeFilter(const ProjectFilter &filter)
    {
        if (filter == ProjectFilter())
            return;
        _stream.writeString(u"filter"_s);
        _stream.writeObjectOpen();
        writeText("rule"_L1, filter.rule);
        writeText("name"_L1, filter.name);
        writeText("content"_L1, filter.content);
        if (filter.hideUnknown) {
            _stream.writeString(u"hideUnknown"_s);
            _stream.writeBool(true);
        }
        _stream.writeObjectClose();
    }

    void writeWatched(const std::vector<ProjectWatch> &watched)
    {
        if (watched.empty())
            return;
        openList("watched"_L1);
        for (const ProjectWatch &watch : watched) {
            _stream.writeObjectOpen();
            writeText("group"_L1, watch.group);
            writeNumber("stream"_L1, watch.stream);
            writeText("key"_L1, watch.key);
            writeText("label"_L1, watch.label);
            _stream.writeObjectClose();
        }
        _stream.writeArrayClose();
    }

    void writeRules(const std::map<QString, QString> &rules)
    {
        if (rules.empty())
            return;
        openList("rules"_L1);
        for (const auto &[name, rule] : rules) {
            _stream.writeObjectOpen();
            writeText("name"_L1, name);
            writeText("rule"_L1, rule);
            _stream.writeObjectClose();
        }
        _stream.writeArrayClose();
    }

    void writeComparison(const ProjectComparison &comparison)
    {
        if (comparison == ProjectComparison())
            return;
        _stream.writeString(u"comparison"_s);
        _stream.writeObjectOpen();
        if (comparison.columns) {
            openList("columns"_L1);
            for (const QString &path : *comparison.columns)
                _stream.writeUtf8String(projectUrl(path, _folder));
            _stream.writeArrayClose();
        }
        writeText("rows"_L1, comparison.rows);
        _stream.writeObjectClose();
    }

    QString _folder;
    OutputBuffer _out;
    qsizetype _size = 0;
    SBJson5StreamWriter _stream{*this, {.humanReadable = true}};
};

} // namespace

Expected<void> writeProject(const Project &project, const QString &folder, QIODevice &device)
{
    if (project.files.size() > kMostProjectFiles)
        return failure(u"a project holds %1 files at most"_s.arg(kMostProjectFiles));
    return ProjectDocument(folder, device).write(project);
}

Expected<void> saveProject(const Project &project, const QString &path)
{
    return writeWhole(
        path, [&](QIODevice &device) { return writeProject(project, folderOfProject(path), device); });
}

} // namespace quorvin
