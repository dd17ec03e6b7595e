#include "ui/reports/TfrmCallSheet.h"

#include "ui_TfrmCallSheet.h"

#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"
#include "document/Settings.h"
#include "reports/CallSheetFile.h"

#include <QCalendarWidget>
#include <QDesktopServices>
#include <QFileDialog>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>
#include <QShowEvent>
#include <QTableWidget>
#include <QUrl>

#include <cmath>

namespace tb {

using namespace CallSheetColumns;

namespace {

const QStringList TwoColumnTitles{QStringLiteral("Description"), QStringLiteral("Call")};
const QList<int> TwoColumnWidths{180, 60};
const QStringList OtherTitles{QStringLiteral("Type"), QStringLiteral("Description")};
const QList<int> OtherWidths{85, 155};

void setTitles(QTableWidget *grid, const QStringList &titles, const QList<int> &widths)
{
    grid->setColumnCount(int(titles.size()));
    grid->setHorizontalHeaderLabels(titles);
    grid->horizontalHeader()->setStretchLastSection(false);
    for (int c = 0; c < widths.size(); ++c)
        grid->setColumnWidth(c, widths.at(c));
}

void setRows(QTableWidget *grid, const QList<QStringList> &rows)
{
    grid->setRowCount(int(rows.size()));
    for (int r = 0; r < rows.size(); ++r) {
        for (int c = 0; c < grid->columnCount(); ++c)
            grid->setItem(r, c, new QTableWidgetItem(rows.at(r).value(c)));
    }
}

QString cellText(const QTableWidget *grid, int row, int column)
{
    const QTableWidgetItem *item = grid->item(row, column);
    return item ? item->text() : QString();
}

QStringList rowTexts(const QTableWidget *grid, int row)
{
    QStringList texts;
    for (int c = 0; c < grid->columnCount(); ++c)
        texts.append(cellText(grid, row, c));
    return texts;
}

void setRowTexts(QTableWidget *grid, int row, const QStringList &texts)
{
    for (int c = 0; c < grid->columnCount(); ++c)
        grid->setItem(row, c, new QTableWidgetItem(texts.value(c)));
}

CallSheetGrid readGrid(const QTableWidget *grid, int columns)
{
    CallSheetGrid sheetGrid(columns);
    sheetGrid.rows.clear();
    for (int r = 0; r < grid->rowCount(); ++r) {
        QStringList row = rowTexts(grid, r);
        while (row.size() < columns)
            row.append(QString());
        sheetGrid.rows.append(row);
    }
    if (sheetGrid.rows.isEmpty())
        sheetGrid.rows.append(QStringList(columns));
    return sheetGrid;
}

// The selected data rows, last first, so that they can be removed in that order.
QList<int> selectedRowsDescending(const QTableWidget *grid)
{
    QList<int> rows;
    for (const QModelIndex &index : grid->selectionModel()->selectedIndexes()) {
        if (!rows.contains(index.row()))
            rows.append(index.row());
    }
    if (rows.isEmpty() && grid->currentRow() >= 0)
        rows.append(grid->currentRow());
    std::sort(rows.begin(), rows.end(), std::greater<int>());
    return rows;
}

QTableWidget *makePopupGrid(QWidget *parent, const QString &name)
{
    auto *grid = new QTableWidget(parent);
    grid->setObjectName(name);
    grid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    grid->setSelectionBehavior(QAbstractItemView::SelectRows);
    grid->setSelectionMode(QAbstractItemView::SingleSelection);
    grid->verticalHeader()->setVisible(false);
    grid->horizontalHeader()->setVisible(false);
    // The list takes clicks without taking the focus, so the grid it serves keeps it.
    grid->setFocusPolicy(Qt::NoFocus);
    grid->setFrameShape(QFrame::Box);
    grid->hide();
    return grid;
}

} // namespace

TfrmCallSheet::TfrmCallSheet(ScheduleDocument &doc, QWidget *parent)
    : DialogWithHelp(QStringLiteral("call-sheet.html"), parent)
    , m_doc(doc)
    , ui(std::make_unique<Ui::TfrmCallSheet>())
    , m_saveFileName(QStringLiteral("*.tbs"))
{
    ui->setupUi(this);
    ui->SceneUnshotCheck->hide();
    ui->SceneGrid->setEditTriggers(QAbstractItemView::NoEditTriggers);
    ui->DatePicker->setDisplayFormat(QLocale().dateFormat(QLocale::LongFormat));

    m_scenePopup = makePopupGrid(this, QStringLiteral("ScenePopup"));
    m_castPopup = makePopupGrid(this, QStringLiteral("CastPopup"));
    m_categoryPopup = new QListWidget(this);
    m_categoryPopup->setObjectName(QStringLiteral("CategoryPopup"));
    m_categoryPopup->setFocusPolicy(Qt::NoFocus);
    m_categoryPopup->setFrameShape(QFrame::Box);
    m_categoryPopup->hide();

    runPrintDialog = [this](QPrinter &printer, int *copies) {
        QPrintDialog dialog(&printer, this);
        if (dialog.exec() != QDialog::Accepted)
            return false;
        *copies = std::max(1, printer.copyCount());
        return true;
    };
    chooseSaveFile = [](QWidget *parent, const QString &current) {
        QFileDialog dialog(parent, QStringLiteral("Save call sheet"));
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setNameFilters({QStringLiteral("Call sheets (*.tbc)"), QStringLiteral("All files (*.*)")});
        // The save dialog adds "tbs" while its filter shows "*.tbc"; the program has
        // always named saved sheets so, and both are kept.
        dialog.setDefaultSuffix(QStringLiteral("tbs"));
        dialog.selectFile(current);
        return dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty() ? dialog.selectedFiles().first()
                                                                                       : QString();
    };
    chooseOpenFile = [](QWidget *parent) {
        QFileDialog dialog(parent, QStringLiteral("Open call sheet"));
        dialog.setAcceptMode(QFileDialog::AcceptOpen);
        dialog.setFileMode(QFileDialog::ExistingFile);
        dialog.setNameFilters({QStringLiteral("Call sheets (*.tbc)"), QStringLiteral("All files (*.*)")});
        dialog.setDefaultSuffix(QStringLiteral("tbc"));
        return dialog.exec() == QDialog::Accepted && !dialog.selectedFiles().isEmpty() ? dialog.selectedFiles().first()
                                                                                       : QString();
    };
    openUrl = [](const QUrl &url) { QDesktopServices::openUrl(url); };

    connect(ui->PrintBut, &QPushButton::clicked, this, &TfrmCallSheet::PrintButClick);
    connect(ui->PrevBut, &QPushButton::clicked, this, &TfrmCallSheet::PrevButClick);
    connect(ui->SaveBut, &QPushButton::clicked, this, &TfrmCallSheet::SaveButClick);
    connect(ui->OpenBut, &QPushButton::clicked, this, &TfrmCallSheet::OpenButClick);
    connect(ui->NetBut, &QPushButton::clicked, this, &TfrmCallSheet::NetButClick);
    connect(ui->CancelBut, &QPushButton::clicked, this, &QDialog::reject);
    connect(ui->DatePicker, &QDateEdit::dateChanged, this, &TfrmCallSheet::DatePickerChange);
    if (QCalendarWidget *calendar = ui->DatePicker->calendarWidget()) {
        connect(calendar, &QCalendarWidget::clicked, this, &TfrmCallSheet::DatePickerCloseUp);
        connect(calendar, &QCalendarWidget::activated, this, &TfrmCallSheet::DatePickerCloseUp);
    }
    connect(m_scenePopup, &QTableWidget::cellClicked, this, [this](int row, int) { ScenePopupClick(row); });
    connect(m_castPopup, &QTableWidget::cellClicked, this, [this](int row, int) { CastPopupClick(row); });
    connect(m_categoryPopup, &QListWidget::itemClicked, this,
            [this](QListWidgetItem *item) { CategoryPopupClick(m_categoryPopup->row(item)); });
    connect(ui->NotesMemo, &QPlainTextEdit::textChanged, this, [this] {
        if (!m_filling)
            setManualChange();
    });
    for (QLineEdit *edit : {ui->UnitEdit, ui->CostumeEdit, ui->MakeupEdit, ui->WrapEdit}) {
        edit->installEventFilter(this);
        connect(edit, &QLineEdit::textEdited, this, &TfrmCallSheet::setManualChange);
    }
    for (QTableWidget *grid :
         {ui->SceneGrid, ui->CastGrid, ui->ExtrasGrid, ui->CrewGrid, ui->OtherGrid, m_scenePopup, m_castPopup}) {
        // String grid rows: one line of text each, in the small font the column widths
        // were made for.
        QFont font = grid->font();
        font.setPointSizeF(std::min(font.pointSizeF(), 8.0));
        grid->setFont(font);
        grid->setWordWrap(false);
        grid->verticalHeader()->setDefaultSectionSize(grid->fontMetrics().height() + 6);
    }
    for (QTableWidget *grid : {ui->SceneGrid, ui->CastGrid, ui->ExtrasGrid, ui->CrewGrid, ui->OtherGrid}) {
        grid->installEventFilter(this);
        grid->viewport()->installEventFilter(this);
        connect(grid, &QTableWidget::itemChanged, this, [this] {
            if (!m_filling)
                setManualChange();
        });
    }
}

TfrmCallSheet::~TfrmCallSheet() = default;

// ---- Show and the sheet in the controls ----

void TfrmCallSheet::showEvent(QShowEvent *event)
{
    // Opening the dialog fills the sheet; the window coming back from being minimised
    // does not.
    if (!event->spontaneous())
        FormShow();
    QDialog::showEvent(event);
}

void TfrmCallSheet::FormShow()
{
    m_built = BuiltReport();
    const QString printer = QPrinterInfo::defaultPrinterName();
    m_printer.choose(printer.isEmpty() ? PdfFileChoiceText() : printer);
    m_printer.setOrientation(QPageLayout::Portrait);
    // Tomorrow: now plus one day.
    const QDateTime now = QDateTime::currentDateTime();
    const double tomorrow =
        legacy::DateToSerial(now.date().addDays(1)) + now.time().msecsSinceStartOfDay() / 86400000.0;
    CallSheet sheet;
    FillCallSheet(m_doc, sheet, tomorrow);
    ui->SceneUnshotCheck->setChecked(true);
    showSheet(sheet);
    m_lastDate = tomorrow;
    m_manualChange = false;
    hidePopups();
    ui->UnitEdit->setFocus();
}

void TfrmCallSheet::showSheet(const CallSheet &sheet)
{
    m_filling = true;
    {
        const QSignalBlocker block(ui->DatePicker);
        ui->DatePicker->setDate(sheet.pickedDate());
    }
    ui->UnitEdit->setText(sheet.unitCall);
    ui->CostumeEdit->setText(sheet.costumeCall);
    ui->MakeupEdit->setText(sheet.makeupCall);
    ui->WeatherEdit->setText(sheet.weather);
    ui->WrapEdit->setText(sheet.wrap);
    setTitles(ui->SceneGrid, CallSheetSceneTitles(), CallSheetSceneWidths());
    setRows(ui->SceneGrid, sheet.scenes.rows);
    setTitles(ui->CastGrid, CallSheetCastTitles(), CallSheetCastWidths());
    setRows(ui->CastGrid, sheet.cast.rows);
    setTitles(ui->ExtrasGrid, TwoColumnTitles, TwoColumnWidths);
    setRows(ui->ExtrasGrid, sheet.extras.rows);
    setTitles(ui->CrewGrid, TwoColumnTitles, TwoColumnWidths);
    setRows(ui->CrewGrid, sheet.crew.rows);
    setTitles(ui->OtherGrid, OtherTitles, OtherWidths);
    setRows(ui->OtherGrid, sheet.other.rows);
    ui->NotesMemo->setPlainText(sheet.notes.join(u'\n'));
    ui->NotesMemo->document()->setModified(false);

    // The pop-up lists.
    QList<int> widths = CallSheetSceneWidths();
    setTitles(m_scenePopup, CallSheetSceneTitles(), {});
    for (int c = 0; c < widths.size(); ++c)
        m_scenePopup->setColumnWidth(c, widths.at(c) + 1);
    setRows(m_scenePopup, ScenePopupRows(m_doc, ui->SceneUnshotCheck->isChecked()));
    setTitles(m_castPopup, {QString(), QString(), QString()}, {30, 100, 100});
    setRows(m_castPopup, CastPopupRows(m_doc));
    m_categoryPopup->clear();
    m_categoryPopup->addItems(CategoryPopupNames(m_doc));
    m_filling = false;
    DoTotalPages();
}

CallSheet TfrmCallSheet::sheet() const
{
    CallSheet sheet;
    sheet.date = pickedSerial();
    sheet.unitCall = ui->UnitEdit->text();
    sheet.costumeCall = ui->CostumeEdit->text();
    sheet.makeupCall = ui->MakeupEdit->text();
    sheet.weather = ui->WeatherEdit->text();
    sheet.wrap = ui->WrapEdit->text();
    sheet.scenes = readGrid(ui->SceneGrid, 5);
    sheet.cast = readGrid(ui->CastGrid, 6);
    sheet.extras = readGrid(ui->ExtrasGrid, 2);
    sheet.crew = readGrid(ui->CrewGrid, 2);
    sheet.other = readGrid(ui->OtherGrid, 2);
    const QString notes = ui->NotesMemo->toPlainText();
    sheet.notes = notes.isEmpty() ? QStringList() : notes.split(u'\n');
    return sheet;
}

double TfrmCallSheet::pickedSerial() const
{
    // The picker shows a date; the time of day it was set with stays with it.
    const double fraction = m_lastDate - std::floor(m_lastDate);
    return legacy::DateToSerial(ui->DatePicker->date()) + fraction;
}

void TfrmCallSheet::refill()
{
    CallSheet sheet = this->sheet();
    UpdateSheet(m_doc, sheet);
    UpdateElementLists(m_doc, sheet);
    showSheet(sheet);
    m_manualChange = false;
}

void TfrmCallSheet::DoTotalPages()
{
    ui->PagesLab->setText(tb::DoTotalPages(m_doc, sheet()));
}

void TfrmCallSheet::setManualChange()
{
    m_manualChange = true;
    m_lastDate = pickedSerial();
}

// ---- The date ----

void TfrmCallSheet::DatePickerChange()
{
    const double picked = pickedSerial();
    if (legacy::SerialToDate(picked) == legacy::SerialToDate(m_lastDate))
        return;
    if (m_manualChange) {
        const Answer answer = m_doc.prompter().question(MessageKind::Warning,
                                                        QString::fromLatin1(CallSheetDateChangeText), Buttons::YesNo);
        if (answer == Answer::No) {
            m_manualChange = false;
            m_lastDate = picked;
            return;
        }
    }
    m_lastDate = picked;
    m_manualChange = false;
    refill();
}

void TfrmCallSheet::DatePickerCloseUp()
{
    if (!IsAutoRestDay(m_doc, ui->DatePicker->date()))
        return;
    Prompt prompt;
    prompt.kind = MessageKind::Warning;
    prompt.text = QString::fromLatin1(CallSheetRestText);
    if (m_settings)
        AskUnlessRemembered(m_doc.prompter(), *m_settings, RememberedWarning::CallSheetRest, prompt);
    else
        m_doc.prompter().ask(prompt);
}

// ---- Printing ----

bool TfrmCallSheet::CreatePages()
{
    // Values accumulate in a template, so every build starts from a fresh one.
    m_built = BuiltReport();
    ResultOf<BuiltReport> built = CreateCallSheetPages(m_doc, sheet());
    if (!built)
        return false; // the message has been shown
    m_built = std::move(built.value());
    return true;
}

void TfrmCallSheet::PrintButClick()
{
    QPrinter &printer = m_printer.printer();
    int copies = 1;
    if (!runPrintDialog || !runPrintDialog(printer, &copies))
        return;
    if (!CreatePages())
        return;
    TAlReport &report = m_built.report();
    report.progressBox = &SharedReportProgressBox();
    printer.setDocName(report.ReportTitle);
    printer.setCopyCount(1);
    // A file holds one copy; on a printer each copy is a print run of its own.
    if (printer.outputFormat() == QPrinter::PdfFormat)
        copies = 1;
    for (int copy = 0; copy < copies; ++copy) {
        Result printed = report.Print(printer, [&printer] { printer.abort(); });
        if (!printed) {
            if (!report.cancelled)
                m_doc.prompter().error(printed.message());
            return;
        }
    }
    accept();
}

void TfrmCallSheet::PrevButClick()
{
    if (!CreatePages())
        return;
    PreviewFilledReport(m_doc, m_built.report(), m_printer, this);
}

void TfrmCallSheet::done(int result)
{
    m_built = BuiltReport(); // the template is released when the dialog closes
    hidePopups();
    QDialog::done(result);
}

// ---- Call sheet files ----

void TfrmCallSheet::SaveButClick()
{
    const QString path = chooseSaveFile ? chooseSaveFile(this, m_saveFileName) : QString();
    if (path.isEmpty())
        return;
    m_saveFileName = path;
    Result saved = WriteCallSheetFile(sheet(), path);
    if (!saved)
        m_doc.prompter().error(saved.message());
}

void TfrmCallSheet::OpenButClick()
{
    if (!chooseOpenFile || chooseOpenFile(this).isEmpty())
        return;
    // The sheet is read from the save dialog's file name, not from the file picked in
    // the open dialog: the last sheet saved in this dialog, else "*.tbs". The dialog has
    // always done so, and it is kept as it stands.
    CallSheet sheet = this->sheet();
    Result read = ReadCallSheetFile(sheet, m_saveFileName);
    if (!read && read.message() == QLatin1String(CallSheetFileBadHeader)) {
        m_doc.prompter().error(read.message());
        return;
    }
    const bool manual = m_manualChange;
    showSheet(sheet);
    m_manualChange = manual;
    m_lastDate = sheet.date;
    if (!read)
        m_doc.prompter().error(read.message());
}

void TfrmCallSheet::NetButClick()
{
    const QString address = m_settings ? m_settings->weatherUrl : QString::fromLatin1(DefaultWeatherUrl);
    if (openUrl && !address.trimmed().isEmpty())
        openUrl(QUrl::fromUserInput(address.trimmed()));
}

// ---- Hand edits and the pop-up lists ----

void TfrmCallSheet::hidePopups()
{
    m_scenePopup->hide();
    m_castPopup->hide();
    m_categoryPopup->hide();
}

void TfrmCallSheet::showScenePopup(int y)
{
    QTableWidget *grid = ui->SceneGrid;
    const QPoint left = grid->mapTo(this, QPoint(0, 0));
    const int height = 250;
    const int top = std::clamp(y, 0, std::max(0, this->height() - height));
    m_scenePopup->setGeometry(left.x(), top, grid->width(), height);
    m_scenePopup->clearSelection();
    m_scenePopup->show();
    m_scenePopup->raise();
}

void TfrmCallSheet::showCastPopup(int row)
{
    QTableWidget *grid = ui->CastGrid;
    const int rowTop = row >= 0 ? grid->rowViewportPosition(row) : 0;
    const QPoint at = grid->viewport()->mapTo(this, QPoint(0, std::max(0, rowTop)));
    const int top = std::clamp(at.y(), 0, std::max(0, height() - 150));
    m_castPopup->setGeometry(grid->mapTo(this, QPoint(0, 0)).x(), top, 250, 150);
    m_castPopup->clearSelection();
    m_castPopup->show();
    m_castPopup->raise();
}

void TfrmCallSheet::showCategoryPopup()
{
    QTableWidget *grid = ui->OtherGrid;
    const QPoint at = grid->mapTo(this, QPoint(0, 0));
    const int h = std::min(200, std::max(0, height() - at.y()));
    m_categoryPopup->setGeometry(at.x(), at.y(), 160, std::max(h, 80));
    {
        const QSignalBlocker block(m_categoryPopup);
        m_categoryPopup->setCurrentRow(-1);
    }
    m_categoryPopup->show();
    m_categoryPopup->raise();
}

void TfrmCallSheet::ScenePopupClick(int row)
{
    const QString scene = cellText(m_scenePopup, row, SceneNumber);
    QTableWidget *grid = ui->SceneGrid;
    const int target = std::max(0, grid->currentRow());
    const QStringList values = ChosenSceneRow(m_doc, scene);
    setRowTexts(grid, target, values);
    hidePopups();
    DoTotalPages();
    grid->setFocus();
    setManualChange();
}

void TfrmCallSheet::CastPopupClick(int row)
{
    QTableWidget *grid = ui->CastGrid;
    const int target = std::max(0, grid->currentRow());
    const QStringList values = ChosenCastRow(m_doc, sheet(), cellText(m_castPopup, row, 0),
                                             cellText(m_castPopup, row, 1), rowTexts(grid, target));
    setRowTexts(grid, target, values);
    hidePopups();
    grid->setFocus();
    setManualChange();
}

void TfrmCallSheet::CategoryPopupClick(int row)
{
    if (row < 0 || row >= m_categoryPopup->count())
        return;
    QTableWidget *grid = ui->OtherGrid;
    const int target = std::max(0, grid->currentRow());
    grid->setItem(target, OtherType, new QTableWidgetItem(m_categoryPopup->item(row)->text()));
    hidePopups();
    grid->setFocus();
    setManualChange();
}

void TfrmCallSheet::moveSceneRow(int from, int to)
{
    QTableWidget *grid = ui->SceneGrid;
    const QStringList texts = rowTexts(grid, from);
    grid->removeRow(from);
    grid->insertRow(to);
    setRowTexts(grid, to, texts);
    grid->setCurrentCell(to, 0);
    grid->selectRow(to);
    setManualChange();
}

// Delete, Insert and Escape in a grid; true when the key was used.
bool TfrmCallSheet::gridKey(QTableWidget *grid, int key)
{
    const bool insertable = grid == ui->SceneGrid || grid == ui->CastGrid;
    if (key == Qt::Key_Delete) {
        if (grid->rowCount() <= 1) {
            for (int c = 0; c < grid->columnCount(); ++c)
                grid->setItem(0, c, new QTableWidgetItem(QString()));
        } else {
            for (int row : selectedRowsDescending(grid)) {
                if (grid->rowCount() > 1)
                    grid->removeRow(row);
                else
                    setRowTexts(grid, 0, {});
            }
        }
        setManualChange();
        return true;
    }
    if (key == Qt::Key_Insert && insertable) {
        const int row = std::max(0, grid->currentRow());
        grid->insertRow(row);
        setRowTexts(grid, row, {});
        grid->setCurrentCell(row, 0);
        grid->selectRow(row);
        setManualChange();
        if (grid == ui->SceneGrid) {
            const int y = grid->viewport()->mapTo(this, QPoint(0, std::max(0, grid->rowViewportPosition(row)))).y();
            showScenePopup(y);
        } else {
            showCastPopup(row);
        }
        return true;
    }
    if (key == Qt::Key_Escape && insertable) {
        hidePopups();
        return true;
    }
    return false;
}

bool TfrmCallSheet::eventFilter(QObject *watched, QEvent *event)
{
    // The call edits count as a hand edit when clicked.
    if (event->type() == QEvent::MouseButtonPress) {
        for (QLineEdit *edit : {ui->UnitEdit, ui->CostumeEdit, ui->MakeupEdit, ui->WrapEdit}) {
            if (watched == edit) {
                hidePopups();
                setManualChange();
                return false;
            }
        }
    }
    QTableWidget *grid = nullptr;
    for (QTableWidget *g : {ui->SceneGrid, ui->CastGrid, ui->ExtrasGrid, ui->CrewGrid, ui->OtherGrid}) {
        if (watched == g || watched == g->viewport())
            grid = g;
    }
    if (!grid)
        return QDialog::eventFilter(watched, event);

    switch (event->type()) {
    case QEvent::KeyPress: {
        if (watched != grid)
            break;
        const bool used = gridKey(grid, static_cast<QKeyEvent *>(event)->key());
        if (grid == ui->SceneGrid)
            DoTotalPages();
        if (used)
            return true;
        break;
    }
    case QEvent::MouseButtonPress: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        const int row = grid->rowAt(mouse->position().toPoint().y());
        if (mouse->button() == Qt::RightButton) {
            hidePopups();
            if (row >= 0) {
                grid->setCurrentCell(row, std::max(0, grid->currentColumn()));
                grid->selectRow(row);
            }
            if (grid == ui->SceneGrid)
                showScenePopup(grid->viewport()->mapTo(this, mouse->position().toPoint()).y());
            else if (grid == ui->CastGrid)
                showCastPopup(row >= 0 ? row : grid->currentRow());
            else if (grid == ui->OtherGrid)
                showCategoryPopup();
            return true;
        }
        hidePopups();
        if (grid == ui->SceneGrid && mouse->button() == Qt::LeftButton)
            m_dragRow = row;
        break;
    }
    case QEvent::MouseButtonRelease: {
        auto *mouse = static_cast<QMouseEvent *>(event);
        if (grid == ui->SceneGrid && mouse->button() == Qt::LeftButton && m_dragRow >= 0) {
            const int to = grid->rowAt(mouse->position().toPoint().y());
            const int from = m_dragRow;
            m_dragRow = -1;
            if (to >= 0 && to != from) {
                moveSceneRow(from, to);
                return true;
            }
        }
        break;
    }
    case QEvent::FocusOut: {
        // Leaving a grid hides the lists (choosing from a list does not take the focus).
        if (watched == grid)
            hidePopups();
        break;
    }
    default:
        break;
    }
    return QDialog::eventFilter(watched, event);
}

void TfrmCallSheet::mousePressEvent(QMouseEvent *event)
{
    hidePopups();
    QDialog::mousePressEvent(event);
}

} // namespace tb
