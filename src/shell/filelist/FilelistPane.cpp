// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/filelist/FilelistPane.h"

#include "filter/RuleText.h"
#include "shell/desktop/Counts.h"
#include "shell/desktop/SearchField.h"
#include "shell/filelist/FilelistController.h"
#include "shell/filelist/FilelistTable.h"
#include "shell/filelist/FilterStrip.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QVBoxLayout>

namespace quorvin {

namespace {

constexpr int kFieldAir = 4;

struct FilterPart {
    QString text;
    FilelistFilter without;
};

/// Each filter that is set, and what is left without it.
std::vector<FilterPart> partsOf(const FilelistFilter &criteria)
{
    std::vector<FilterPart> parts;
    const auto add = [&](bool isSet, const QString &text, auto remove) {
        if (!isSet)
            return;
        parts.push_back({text, criteria});
        remove(parts.back().without);
    };
    add(criteria.hideUnknownFiles, FilelistPane::tr("Known files only"),
        [](FilelistFilter &other) { other.hideUnknownFiles = false; });
    add(!criteria.filenameText.isEmpty(), FilelistPane::tr("Name has “%1”").arg(criteria.filenameText),
        [](FilelistFilter &other) { other.filenameText.clear(); });
    add(!criteria.globalText.isEmpty(), FilelistPane::tr("Contains “%1”").arg(criteria.globalText),
        [](FilelistFilter &other) { other.globalText.clear(); });
    add(!criteria.rule.isEmpty(), textOfRule(criteria.rule), [](FilelistFilter &other) { other.rule = {}; });
    add(criteria.area.has_value(), FilelistPane::tr("In view on the map"),
        [](FilelistFilter &other) { other.area.reset(); });
    return parts;
}

} // namespace

FilelistPane::FilelistPane(FilelistController &files, FilelistTable *table, QWidget *parent)
    : QWidget(parent),
      _files(files),
      _table(table),
      _fieldRow(new QWidget),
      _filenameSearchField(new SearchField),
      _strip(new FilterStrip)
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto *fieldRow = new QHBoxLayout;
    fieldRow->setContentsMargins(kFieldAir, kFieldAir, kFieldAir, kFieldAir);
    fieldRow->addWidget(_filenameSearchField);
    _fieldRow->setLayout(fieldRow);
    column->addWidget(_fieldRow);
    column->addWidget(_strip);
    column->addWidget(table, 1);
    _filenameSearchField->setPlaceholderText(tr("Filter by name"));
    _filenameSearchField->setAccessibleName(tr("Filter by name"));
    _filenameSearchField->installEventFilter(this);
    _fieldRow->hide();
    connect(_filenameSearchField, &QLineEdit::textChanged, this, &FilelistPane::updateFilenameSearch);
    connect(&files.filtering(), &FilelistFiltering::criteriaDidChange, this, &FilelistPane::showFilters);
    for (const auto signal : {&BackgroundRunBase::started, &BackgroundRunBase::ended})
        connect(&files.filtering().search(), signal, this, &FilelistPane::showCounts);
    connect(&files, &FilelistController::totalsDidChange, this, &FilelistPane::showCounts);
    showFilters();
}

void FilelistPane::editNameFilter()
{
    _fieldRow->show();
    _filenameSearchField->setFocus(Qt::ShortcutFocusReason);
    _filenameSearchField->selectAll();
}

QStringList FilelistPane::filterTexts() const
{
    QStringList texts;
    for (const FilterPart &part : partsOf(_files.filtering().criteria()))
        texts.append(part.text);
    return texts;
}

void FilelistPane::updateFilenameSearch()
{
    FilelistFilter criteria = _files.filtering().criteria();
    criteria.filenameText = _filenameSearchField->text();
    _files.filtering().setCriteria(criteria);
}

void FilelistPane::showFilters()
{
    const FilelistFilter &criteria = _files.filtering().criteria();
    _filenameSearchField->setText(criteria.filenameText);
    if (!criteria.filenameText.isEmpty())
        _fieldRow->show();
    std::vector<FilterStrip::Line> lines;
    for (const FilterPart &part : partsOf(criteria)) {
        lines.push_back({part.text, [this, without = part.without] {
                             _files.filtering().setCriteria(without);
                             _table->setFocus();
                         }});
    }
    _strip->setLines(lines);
    showCounts();
}

void FilelistPane::showCounts()
{
    if (!_files.filtering().criteria().isActive())
        return;
    QString text = tr("%1 of %2")
                       .arg(groupedCount(_files.arranged().rowCount()),
                            countOfFiles(static_cast<qint64>(_files.filelist().size())));
    if (_files.filtering().isSearching())
        text = tr("Searching… %1").arg(text);
    _strip->setCounts(text);
}

bool FilelistPane::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<QKeyEvent *>(event)->key();
    if (key == Qt::Key_Escape && !_filenameSearchField->text().isEmpty()) {
        _filenameSearchField->clear();
        return true;
    }
    if (key == Qt::Key_Down || key == Qt::Key_Return || key == Qt::Key_Enter) {
        _table->setFocus();
        return true;
    }
    return QWidget::eventFilter(watched, event);
}

void FilelistPane::keyPressEvent(QKeyEvent *event)
{
    if (event->key() != Qt::Key_Escape || !_filenameSearchField->hasFocus())
        return QWidget::keyPressEvent(event);
    _table->setFocus();
    _fieldRow->hide();
}

} // namespace quorvin
