// SPDX-FileCopyrightText: 2026 The Quorvin authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "shell/desktop/BackgroundRun.h"
#include "shell/surgery/RemovalForm.h"
#include "shell/surgery/RemovalTask.h"

#include <QDialog>
#include <QTimer>

#include <memory>
#include <stop_token>
#include <vector>

class QLabel;
class QProgressBar;
class QPushButton;
class QTreeView;

namespace quorvin {

class LiveSettings;
class ReceiptModel;
class TracesOffer;

/// Takes images through a removal of metadata, page by page: what is asked for, and what would come of it for
/// each image, anew with each change; the work, which can be stopped between two images; and the receipt,
/// which can be saved. Nothing is written before the user agrees to what the first page tells. Main thread.
class RemovalSheet final : public QDialog {
    Q_OBJECT
public:
    /// `settings` must outlive the sheet. Begins with what is checked in `options`; with `isFixed` that is
    /// what goes, and the user isn't asked for it.
    RemovalSheet(LiveSettings &settings, const RemovalFiles &files, const oEXIV2Metadata &options,
                 bool isFixed, QWidget *parent);

    /// What is checked.
    oEXIV2Metadata options() const { return _form->options(); }
    /// While the work is under way it is stopped, and the sheet stays; else the sheet is closed.
    void reject() override;

Q_SIGNALS:
    /// These are not what they were.
    void removed(const std::vector<quorvin::FilelistItemPtr> &files);

private:
    enum class Page { Plan, Work, Receipt };

    void layOut();
    void showPage(Page page);
    RemovalTask task() const;
    void plan();
    void takePlan(std::vector<RemovalReceipt> receipts);
    void clickDoRemoveMetaData();
    void takeReceipts(std::vector<RemovalReceipt> receipts);
    void showReceipts(std::vector<RemovalReceipt> receipts, bool isPlan);
    void lookForTraces();
    void filesDidChange(const QStringList &paths);
    void chooseReceipt();
    void saveReceipt(const QString &path);

    LiveSettings &_settings;
    RemovalForm *_form;
    QLabel *_state;
    QProgressBar *_progress;
    TracesOffer *_traces;
    ReceiptModel *_receipts;
    QTreeView *_list;
    QPushButton *_remove;
    QPushButton *_save;
    QPushButton *_leave; ///< Cancel, Stop or Close
    Page _page = Page::Plan;
    std::vector<FilelistItemPtr> _files; ///< that the run under way, or the last one, is about
    QTimer _planDelay; ///< several changes make one plan
    std::stop_source _stop; ///< of the work, between two files
    BackgroundRun<std::vector<RemovalReceipt>> _run;
    BackgroundRun<Expected<void>> _saving;
};

} // namespace quorvin
