// SPDX-License-Identifier: MIT
#pragma once

#include "backoffice/menu/Import.h"

#include <QDialog>
#include <QThread>

#include <atomic>
#include <functional>
#include <memory>

class ImportModel;
class ImportRows;
class QCheckBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QTableView;

/// Imports a menu or recipes from a file: shows what each line would do, then does it all or
/// nothing. Reading and importing are done beside the window.
class ImportDialog : public QDialog
{
    Q_OBJECT

public:
    ImportDialog(ImportKind kind, Import import, QWidget* parent = nullptr);
    ImportDialog(const ImportDialog&) = delete;
    ImportDialog& operator=(const ImportDialog&) = delete;
    ImportDialog(ImportDialog&&) = delete;
    ImportDialog& operator=(ImportDialog&&) = delete;
    /// Waits for what is under way; a copy is stopped.
    ~ImportDialog() override;

    /// Reads the file \a path and shows what importing it would do.
    void openFile(const QString& path);

public slots:
    /// Stops what is under way before it closes.
    void reject() override;

signals:
    /// Something was imported.
    void imported();

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    /// What a job beside the window leaves to do in it.
    using Then = std::function<void()>;

    void build();
    void buildTable();
    void chooseFile();
    void carryOut();
    void finish(Import::Result result);
    void showPlan(ImportPlan plan);
    void say(const QString& sentence);
    void allowActions();
    /// Runs \a job in another thread, and then in this one what it returns; an ImportError is said.
    void runAside(std::function<Then()> job);
    void endJob();
    bool isAtWork() const { return thread_ != nullptr; }

    ImportKind kind_;
    Import import_;
    ImportFile file_;
    QLabel* name_ = nullptr;
    QPushButton* choose_ = nullptr;
    QTableView* table_ = nullptr;
    ImportModel* model_ = nullptr;
    ImportRows* rows_ = nullptr;
    QLabel* counts_ = nullptr;
    QCheckBox* refusedOnly_ = nullptr;
    QLabel* outcome_ = nullptr;
    QProgressBar* progress_ = nullptr;
    QPushButton* start_ = nullptr;
    QPushButton* cancel_ = nullptr;
    bool closesAtEnd_ = false;
    std::atomic<bool> isStopped_ = false;
    /// Set by the job, and not looked at before its thread has ended.
    Then then_;
    std::unique_ptr<QThread> thread_;
};
