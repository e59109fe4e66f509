// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "export/QuorvinExporter.h"

#include "export/ExportFormats.h"
#include "filefacts/Paths.h"
#include "platform/AtomicFile.h"
#include "platform/NativePath.h"

#include <QIODevice>

#include <utility>

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
        const Result written = _writer->write(entry);
        // Whoever reads a pipe or a terminal wants each file as soon as it is there.
        return written && _device.isSequential() ? _writer->flush() : written;
    }

    Result finish() override { return _writer->finish(); }

private:
    QIODevice &_device;
    std::unique_ptr<ExportWriter> _writer;
};

class FileTarget final : public ExportTarget {
public:
    FileTarget(QuorvinExporter exporter, QString path)
        : _exporter(std::move(exporter)), _path(std::move(path))
    {
    }

    Result add(const ExportEntry &entry) override
    {
        return begun().and_then([&] { return _document->add(entry); });
    }

    Result finish() override
    {
        return begun().and_then([&] { return _document->finish(); }).and_then([&] {
            return _file->commit();
        });
    }

private:
    Result begun()
    {
        if (_file)
            return {};
        auto file = AtomicFile::create(_path);
        if (!file)
            return tl::unexpected(file.error());
        _file = std::move(*file);
        _document = _exporter.toDevice(_file->device());
        return {};
    }

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
        if (!std::exchange(_hasBegun, true))
            AtomicFile::removeLeftovers(_folder);
        const QString extension = QuorvinExporter::extensionForExportFormat(_exporter.format());
        const QString path = _folder + u'/' + pathStem(entry.filename) + u'.' + extension;
        return write(entry, path).map_error([&](Error error) {
            error.description.prepend(path + QLatin1String(": "));
            return error;
        });
    }

    Result finish() override
    {
        if (_hasBegun)
            AtomicFile::syncFolder(_folder);
        return {};
    }

private:
    Result write(const ExportEntry &entry, const QString &path) const
    {
        const auto file = AtomicFile::create(Utilities::uniqueFilename(path), AtomicFile::Extent::OneOfMany);
        if (!file)
            return tl::unexpected(file.error());
        const auto document = _exporter.toDevice((*file)->device());
        return document->add(entry).and_then([&] { return document->finish(); }).and_then([&] {
            return putIntoPlace(**file, path);
        });
    }

    static Result putIntoPlace(AtomicFile &file, const QString &path)
    {
        const auto attempt = [&](const QString &free) {
            file.setName(lastPathComponent(free));
            return file.commit(AtomicFile::Existing::Keep);
        };
        return Utilities::takeUniqueFilename(path, attempt).map([](const QString &) {});
    }

    QuorvinExporter _exporter;
    QString _folder;
    bool _hasBegun = false;
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
