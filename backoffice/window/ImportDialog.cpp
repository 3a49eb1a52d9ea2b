// SPDX-License-Identifier: MIT
#include "backoffice/window/ImportDialog.h"

#include "backoffice/menu/SheetText.h"
#include "backoffice/window/ImportModel.h"

#include <QCheckBox>
#include <QDragEnterEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QHeaderView>
#include <QLabel>
#include <QMimeData>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTableView>
#include <QUrl>
#include <QVBoxLayout>

#include <utility>

namespace {
/// The file in \a mime, empty when it is none or several.
QString fileIn(const QMimeData& mime)
{
    const QList<QUrl> urls = mime.urls();
    return urls.size() == 1 ? urls.constFirst().toLocalFile() : QString();
}
} // namespace

ImportDialog::ImportDialog(ImportKind kind, Import import, QWidget* parent)
    : QDialog(parent)
    , kind_(kind)
    , import_(std::move(import))
{
    setWindowTitle(kind == ImportKind::Menu ? tr("Importer le menu") : tr("Importer les recettes"));
    setAcceptDrops(true);
    build();
    allowActions();
}

ImportDialog::~ImportDialog()
{
    isStopped_ = true;
    if (thread_) {
        thread_->wait();
    }
}

void ImportDialog::build()
{
    constexpr QSize size(900, 600);
    resize(size);
    auto* all = new QVBoxLayout(this);
    auto* top = new QHBoxLayout;
    choose_ = new QPushButton(tr("&Choisir un fichier…"), this);
    name_ = new QLabel(tr("Fichier CSV d'un tableur ; il peut aussi être déposé ici."), this);
    name_->setTextFormat(Qt::PlainText);
    top->addWidget(choose_);
    top->addWidget(name_, 1);
    all->addLayout(top);
    buildTable();
    all->addWidget(table_, 1);
    auto* middle = new QHBoxLayout;
    counts_ = new QLabel(this);
    refusedOnly_ = new QCheckBox(tr("Seulement les lignes &refusées"), this);
    middle->addWidget(counts_, 1);
    middle->addWidget(refusedOnly_);
    all->addLayout(middle);
    outcome_ = new QLabel(this);
    outcome_->setTextFormat(Qt::PlainText);
    outcome_->setTextInteractionFlags(Qt::TextSelectableByMouse);
    outcome_->setWordWrap(true);
    all->addWidget(outcome_);
    auto* bottom = new QHBoxLayout;
    progress_ = new QProgressBar(this);
    progress_->setRange(0, 0);
    progress_->setAccessibleName(tr("Travail en cours"));
    start_ = new QPushButton(this);
    cancel_ = new QPushButton(tr("&Annuler"), this);
    start_->setAutoDefault(false);
    choose_->setAutoDefault(false);
    cancel_->setDefault(true);
    bottom->addWidget(progress_);
    bottom->addStretch(1);
    bottom->addWidget(start_);
    bottom->addWidget(cancel_);
    all->addLayout(bottom);
    choose_->setObjectName(QStringLiteral("choose"));
    counts_->setObjectName(QStringLiteral("counts"));
    refusedOnly_->setObjectName(QStringLiteral("refusedOnly"));
    outcome_->setObjectName(QStringLiteral("outcome"));
    start_->setObjectName(QStringLiteral("start"));
    cancel_->setObjectName(QStringLiteral("cancel"));
    connect(choose_, &QPushButton::clicked, this, &ImportDialog::chooseFile);
    connect(start_, &QPushButton::clicked, this, &ImportDialog::carryOut);
    connect(cancel_, &QPushButton::clicked, this, &ImportDialog::reject);
    connect(refusedOnly_, &QCheckBox::toggled, rows_, &ImportRows::showRefusedOnly);
}

void ImportDialog::buildTable()
{
    constexpr int lineWidth = 60;
    constexpr int actionWidth = 180;
    constexpr int cellWidth = 150;
    model_ = new ImportModel(kind_, this);
    rows_ = new ImportRows(this);
    rows_->setSourceModel(model_);
    table_ = new QTableView(this);
    table_->setObjectName(QStringLiteral("preview"));
    table_->setModel(rows_);
    table_->setAccessibleName(tr("Ce que l'import ferait de chaque ligne"));
    table_->setSelectionBehavior(QAbstractItemView::SelectRows);
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setTabKeyNavigation(false);
    table_->verticalHeader()->hide();
    table_->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < model_->remarkColumn(); ++column) {
        table_->setColumnWidth(column,
            column == ImportModel::Line         ? lineWidth
                : column == ImportModel::Action ? actionWidth
                                                : cellWidth);
    }
}

void ImportDialog::chooseFile()
{
    const QString path = QFileDialog::getOpenFileName(this, windowTitle(),
        QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
        tr("Tableau (*.csv *.txt *.tsv);;Tous les fichiers (*)"));
    if (!path.isEmpty()) {
        openFile(path);
    }
}

void ImportDialog::openFile(const QString& path)
{
    if (isAtWork()) {
        return;
    }
    const QString absolute = QFileInfo(path).absoluteFilePath();
    name_->setText(QFileInfo(path).fileName());
    file_ = {};
    ImportPlan nothing;
    nothing.kind = kind_;
    showPlan(std::move(nothing));
    outcome_->clear();
    runAside([this, absolute]() -> Then {
        ImportFile file = ImportFile::of(SheetText::bytesOf(absolute), kind_);
        ImportPlan plan = import_.plan(file);
        return [this, file = std::move(file), plan = std::move(plan)] {
            file_ = file;
            showPlan(plan);
            if (plan.lines.empty()) {
                say(tr("Le fichier n'a que des titres."));
            }
        };
    });
}

void ImportDialog::carryOut()
{
    isStopped_ = false;
    outcome_->clear();
    runAside([this, file = file_, plan = model_->plan()]() -> Then {
        Import::Result result = import_.carryOut(file, plan, isStopped_);
        return [this, result = std::move(result)] { finish(result); };
    });
}

void ImportDialog::finish(Import::Result result)
{
    switch (result.end) {
    case Import::Result::End::Stopped:
        say(tr("L'import est arrêté. Rien n'est changé."));
        return;
    case Import::Result::End::Outdated:
        showPlan(std::move(result.plan));
        say(tr("Le menu ou les recettes ont changé depuis l'aperçu : rien n'est importé. Voici ce "
               "que l'import ferait maintenant."));
        return;
    case Import::Result::End::Done:
        break;
    }
    const int count = result.plan.changes();
    const QString done = count > 1 ? tr("%1 lignes sont importées.") : tr("%1 ligne est importée.");
    say(done.arg(count) + QLatin1Char(' ')
        + tr("La copie d'avant l'import est « %1 ».").arg(result.copy));
    file_ = {};
    cancel_->setText(tr("&Fermer"));
    allowActions();
    emit imported();
}

void ImportDialog::showPlan(ImportPlan plan)
{
    const auto part = [&plan](ImportAction action, const QString& one, const QString& several) {
        const int count = plan.count(action);
        return QString(count > 1 ? several : one).arg(count);
    };
    const bool isMenu = kind_ == ImportKind::Menu;
    counts_->setText(plan.lines.empty()
            ? QString()
            : QStringList{part(ImportAction::New, tr("%1 nouvelle"), tr("%1 nouvelles")),
                isMenu ? part(ImportAction::Changed, tr("%1 nouveau prix"), tr("%1 nouveaux prix"))
                       : part(ImportAction::Changed, tr("%1 changée"), tr("%1 changées")),
                part(ImportAction::Unchanged, tr("%1 inchangée"), tr("%1 inchangées")),
                part(ImportAction::Refused, tr("%1 refusée, qui reste de côté"),
                    tr("%1 refusées, qui restent de côté"))}
                  .join(QStringLiteral(" · ")));
    model_->setPlan(std::move(plan));
    cancel_->setText(tr("&Annuler"));
    allowActions();
}

void ImportDialog::say(const QString& sentence) { outcome_->setText(sentence); }

void ImportDialog::allowActions()
{
    const int changes = model_->plan().changes();
    const QString text = changes > 1 ? tr("&Importer %1 lignes") : tr("&Importer %1 ligne");
    start_->setText(text.arg(changes));
    start_->setEnabled(!isAtWork() && changes > 0 && !file_.lines.empty());
    choose_->setEnabled(!isAtWork());
    progress_->setVisible(isAtWork());
}

void ImportDialog::runAside(std::function<Then()> job)
{
    thread_.reset(QThread::create([this, job = std::move(job)] {
        try {
            then_ = job();
        } catch (const ImportError& error) {
            then_ = [this, sentence = error.sentence()] { say(sentence); };
        } catch (const std::exception& error) {
            then_ = [this, sentence = QString::fromUtf8(error.what())] { say(sentence); };
        }
    }));
    connect(thread_.get(), &QThread::finished, this, &ImportDialog::endJob);
    allowActions();
    thread_->start();
}

void ImportDialog::endJob()
{
    thread_->wait();
    thread_.reset();
    std::exchange(then_, nullptr)();
    allowActions();
    if (closesAtEnd_) {
        QDialog::reject();
    }
}

void ImportDialog::reject()
{
    if (!isAtWork()) {
        QDialog::reject();
        return;
    }
    isStopped_ = true;
    closesAtEnd_ = true;
    cancel_->setEnabled(false);
}

void ImportDialog::dragEnterEvent(QDragEnterEvent* event)
{
    if (!isAtWork() && !fileIn(*event->mimeData()).isEmpty()) {
        event->acceptProposedAction();
    }
}

void ImportDialog::dropEvent(QDropEvent* event)
{
    const QString path = fileIn(*event->mimeData());
    if (!path.isEmpty()) {
        event->acceptProposedAction();
        openFile(path);
    }
}
