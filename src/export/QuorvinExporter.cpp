// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/QuorvinExporter.h"

#include "export/ExportFormats.h"
#include "filefacts/Paths.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"

#include <QIODevice>

namespace quorvin {

namespace {

using Result = ExportTarget::Result;

class DeviceTarget final : public ExportTarget {
public:
    DeviceTarget(const QuorvinExporter &exporter, QIODevice &device)
        : _device(device), _writer(makeExportWriter(exporter.format(), device, exporter.skipFilePrivate()))
    {
    }

    Result add(const ExportEntry &entry) override
    {
        _isEmpty = false;
        const Result written = _writer->write(entry);
        // Whoever reads a pipe or a terminal wants each file as soon as it is there.
        return written && _device.isSequential() ? _writer->flush() : written;
    }

    Result finish() override { return _isEmpty ? Result() : _writer->finish(); }

private:
    QIODevice &_device;
    std::unique_ptr<ExportWriter> _writer;
    bool _isEmpty = true;
};

class FileTarget final : public ExportTarget {
public:
    FileTarget(QuorvinExporter exporter, QString path)
        : _exporter(std::move(exporter)), _path(std::move(path))
    {
    }

    Result add(const ExportEntry &entry) override
    {
        if (!_file) {
            auto file = AtomicFile::create(_path);
            if (!file)
                return tl::unexpected(file.error());
            _file = std::move(*file);
            _document = _exporter.toDevice(_file->device());
        }
        return _document->add(entry);
    }

    Result finish() override
    {
        if (!_file)
            return {};
        return _document->finish().and_then([&] { return _file->commit(); });
    }

private:
    QuorvinExporter _exporter;
    QString _path;
    std::unique_ptr<AtomicFile> _file;
    std::unique_ptr<ExportTarget> _document;
};

class FolderTarget final : public ExportTarget {
public:
    FolderTarget(QuorvinExporter exporter, QString folder)
        : _exporter(std::move(exporter)), _folder(std::move(folder))
    {
    }

    Result add(const ExportEntry &entry) override
    {
        const QString extension = QuorvinExporter::extensionForExportFormat(_exporter.format());
        const QString name = pathStem(entry.filename) + u'.' + extension;
        const QString path = Utilities::uniqueFilename(_folder + u'/' + name);
        return write(entry, path).map_error([&](Error error) {
            error.description.prepend(path + QLatin1String(": "));
            return error;
        });
    }

    Result finish() override { return {}; }

private:
    Result write(const ExportEntry &entry, const QString &path) const
    {
        const auto file = AtomicFile::create(path);
        if (!file)
            return tl::unexpected(file.error());
        const auto document = _exporter.toDevice((*file)->device());
        return document->add(entry).and_then([&] { return document->finish(); }).and_then([&] {
            return (*file)->commit(AtomicFile::Existing::Keep);
        });
    }

    QuorvinExporter _exporter;
    QString _folder;
};

} // namespace

QString QuorvinExporter::extensionForExportFormat(const QString &format)
{
    return extensionOfFormat(format);
}

std::unique_ptr<ExportTarget> QuorvinExporter::toDevice(QIODevice &device) const
{
    return std::make_unique<DeviceTarget>(*this, device);
}

std::unique_ptr<ExportTarget> QuorvinExporter::toFile(const QString &path) const
{
    return std::make_unique<FileTarget>(*this, path);
}

std::unique_ptr<ExportTarget> QuorvinExporter::toFolder(const QString &folder) const
{
    return std::make_unique<FolderTarget>(*this, folder);
}

} // namespace quorvin
