// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "shell/surgery/RemovalForm.h"

#include "platform/NativePath.h"
#include "shell/desktop/PlainText.h"
#include "shell/surgery/RemovalWords.h"

#include <QCheckBox>
#include <QCoreApplication>
#include <QLabel>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace quorvin {

namespace {

constexpr int kFormGap = 4;
constexpr int kFormSectionGap = 12;

struct Kind {
    bool oEXIV2Metadata::*option;
    const char *text;
    const char *tip;
};

constexpr std::array kKinds{
    Kind{&oEXIV2Metadata::removeExif,
         QT_TRANSLATE_NOOP("RemovalForm", "&Description of picture and camera (Exif)"),
         QT_TRANSLATE_NOOP("RemovalForm",
                           "Dates, camera and lens, exposure, artist; the structure of the file stays")},
    Kind{&oEXIV2Metadata::removeMakernote, QT_TRANSLATE_NOOP("RemovalForm", "&Notes of the camera's maker"),
         QT_TRANSLATE_NOOP("RemovalForm",
                           "Among them often serial numbers; raw files keep them, as they are read by them")},
    Kind{&oEXIV2Metadata::removeGPS, QT_TRANSLATE_NOOP("RemovalForm", "&Position"),
         QT_TRANSLATE_NOOP("RemovalForm", "Where the picture was taken, and when by the satellites' clock")},
    Kind{&oEXIV2Metadata::removeIPTC, QT_TRANSLATE_NOOP("RemovalForm", "&IPTC: captions, keywords, contacts"),
         QT_TRANSLATE_NOOP("RemovalForm", "All of it")},
    Kind{&oEXIV2Metadata::removeXMP, QT_TRANSLATE_NOOP("RemovalForm", "&XMP: titles, ratings, edits"),
         QT_TRANSLATE_NOOP("RemovalForm", "All of it")},
};

QString formText(const char *text)
{
    return QCoreApplication::translate("RemovalForm", text);
}

} // namespace

RemovalForm::RemovalForm(const RemovalFiles &files, const oEXIV2Metadata &options, bool isFixed,
                         QWidget *parent)
    : QWidget(parent),
      _selected(imagesOf(files.selected)),
      _all(imagesOf(files.all)),
      _others(plainLabel()),
      _keepsTimes(new QCheckBox(tr("Keep the dates of the &files"))),
      _allowsHardLinks(new QCheckBox(tr("Also change files that have several names (&hard links)")))
{
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(kFormGap);
    addFiles(*column);
    addKinds(*column);
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        _kinds[i]->setChecked(options.*kKinds[i].option);
        _kinds[i]->setHidden(isFixed);
        connect(_kinds[i], &QCheckBox::toggled, this, &RemovalForm::changed);
    }
    _keepsTimes->setToolTip(plainTip(tr("Of last access and modification")));
    _allowsHardLinks->setToolTip(plainTip(tr("What their other names lead to stays as it is")));
    column->addSpacing(kFormSectionGap);
    column->addWidget(_keepsTimes);
    column->addWidget(_allowsHardLinks);
    connect(_allowsHardLinks, &QCheckBox::toggled, this, &RemovalForm::changed);
    tellOthers();
    connect(this, &RemovalForm::changed, this, &RemovalForm::tellOthers);
}

RemovalForm::Images RemovalForm::imagesOf(const std::vector<FilelistItemPtr> &files)
{
    Images images;
    for (const FilelistItemPtr &file : files) {
        const QuorvinDataPtr record = file->quorvinData();
        if (record && record->isImage())
            images.files.push_back(file);
    }
    images.others = files.size() - images.files.size();
    return images;
}

void RemovalForm::addFiles(QVBoxLayout &column)
{
    const auto nameOf = [](const Images &images) {
        return images.files.empty() ? QString() : lastPathComponent(images.files.front()->filename());
    };
    const QString all = allImagesInWords(_all.files.size(), nameOf(_all));
    if (_selected.files.empty() || _selected.files == _all.files) {
        column.addWidget(plainLabel(all));
    } else {
        QString selected = selectedImagesInWords(_selected.files.size(), nameOf(_selected));
        _onlySelected = new QRadioButton(selected.replace(u'&', QLatin1String("&&")));
        _everything = new QRadioButton(all);
        _onlySelected->setChecked(true);
        connect(_onlySelected, &QRadioButton::toggled, this, &RemovalForm::changed);
        column.addWidget(_onlySelected);
        column.addWidget(_everything);
    }
    _others->setForegroundRole(QPalette::PlaceholderText);
    column.addWidget(_others);
}

void RemovalForm::addKinds(QVBoxLayout &column)
{
    column.addSpacing(kFormSectionGap);
    for (std::size_t i = 0; i < kKinds.size(); ++i) {
        _kinds[i] = new QCheckBox(formText(kKinds[i].text));
        _kinds[i]->setToolTip(plainTip(formText(kKinds[i].tip)));
        column.addWidget(_kinds[i]);
    }
}

bool RemovalForm::isSelectionChosen() const
{
    return _onlySelected && _onlySelected->isChecked();
}

void RemovalForm::tellOthers()
{
    _others->setText(othersInWords((isSelectionChosen() ? _selected : _all).others));
    _others->setVisible(!_others->text().isEmpty());
}

const std::vector<FilelistItemPtr> &RemovalForm::images() const
{
    return (isSelectionChosen() ? _selected : _all).files;
}

oEXIV2Metadata RemovalForm::options() const
{
    oEXIV2Metadata options;
    for (std::size_t i = 0; i < kKinds.size(); ++i)
        options.*kKinds[i].option = _kinds[i]->isChecked();
    return options;
}

bool RemovalForm::keepsTimes() const
{
    return _keepsTimes->isChecked();
}

bool RemovalForm::allowsHardLinks() const
{
    return _allowsHardLinks->isChecked();
}

} // namespace quorvin
