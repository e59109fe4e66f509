// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/TracesOffer.h"

#include "shell/desktop/PlainText.h"
#include "shell/surgery/RemovalWords.h"
#include "surgery/ImageTraces.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace quorvin {

namespace {

constexpr int kOfferGap = 8;
constexpr qsizetype kMostFailedTraces = 5; ///< told one by one

} // namespace

TracesOffer::TracesOffer(QWidget *parent)
    : QWidget(parent), _text(plainLabel()), _clear(new QPushButton(tr("C&lear That, Too")))
{
    _text->setWordWrap(true);
    _clear->setAutoDefault(false);
    _clear->setToolTip(plainTip(tr("Takes the addresses from the files and deletes the thumbnails")));
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(kOfferGap);
    row->addWidget(_text, 1);
    row->addWidget(_clear, 0, Qt::AlignTop);
    connect(_clear, &QPushButton::clicked, this, &TracesOffer::clear);
    hide();
}

TracesOffer::Found TracesOffer::found(const QStringList &paths, const RunControl &control)
{
    Found found;
    for (const QString &path : paths) {
        if (control.isStopped())
            break;
        const ImageTraces traces = tracesOf(path);
        if (!traces.attributes.isEmpty())
            found.withOrigin.append(path);
        if (!traces.thumbnails.isEmpty())
            found.withThumbnails.append(path);
    }
    return found;
}

void TracesOffer::lookAt(const QStringList &paths)
{
    hide();
    _search.start(
        "Traces", [paths](const RunControl &control) { return found(paths, control); },
        [this](const Found &found) { tell(found); });
}

void TracesOffer::tell(const Found &found)
{
    QStringList sentences;
    const auto count
        = [](const QStringList &paths) { return countOfImages(static_cast<std::size_t>(paths.size())); };
    if (!found.withOrigin.isEmpty())
        sentences.append(
            tr("An attribute of the file still tells where it came from: %1.").arg(count(found.withOrigin)));
    if (!found.withThumbnails.isEmpty())
        sentences.append(
            tr("The desktop still keeps thumbnails made before: of %1.").arg(count(found.withThumbnails)));
    _paths = found.withOrigin + found.withThumbnails;
    _paths.removeDuplicates();
    _text->setText(sentences.join(u' '));
    _clear->setEnabled(true);
    setVisible(!_paths.isEmpty());
}

void TracesOffer::clear()
{
    _clear->setEnabled(false);
    _clearing.start(
        "ClearTraces",
        [paths = _paths](const RunControl &control) {
            QStringList failures;
            for (const QString &path : paths) {
                if (control.isStopped())
                    break;
                if (const auto done = clearTraces(path); !done)
                    failures.append(path + QStringLiteral(": ") + done.error().description);
            }
            return failures;
        },
        [this](const QStringList &failures) {
            hide();
            if (!failures.isEmpty())
                plainMessage(window(), tr("Clear Traces"), tr("Not everything could be cleared."),
                             failures.mid(0, kMostFailedTraces).join(u'\n'), QMessageBox::Close)
                    ->open();
            Q_EMIT cleared(_paths);
        });
}

} // namespace quorvin
