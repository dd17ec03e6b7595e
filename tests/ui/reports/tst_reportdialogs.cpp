// The preview window, the report dialogs, the day out of days window and the board print
// dialogs, driven through their widgets.

#include "DialogTestSupport.h"

#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "reports/AlPrinter.h"
#include "reports/ReportBuilders.h"
#include "ui/reports/AlPreview.h"
#include "ui/reports/DodGridView.h"
#include "ui/reports/ReportPrinting.h"
#include "ui/reports/TfrmDOD.h"
#include "ui/reports/TfrmElUse.h"
#include "ui/reports/TfrmPerfSetup.h"
#include "ui/reports/TfrmPreview.h"
#include "ui/reports/TfrmPrintBS.h"
#include "ui/reports/TfrmPrintIt.h"
#include "ui/reports/TfrmPrintingIt.h"
#include "ui/reports/TfrmShootSch.h"
#include "ui_TfrmDOD.h"
#include "ui_TfrmElUse.h"
#include "ui_TfrmPerfSetup.h"
#include "ui_TfrmPrintBS.h"
#include "ui_TfrmPrintIt.h"
#include "ui_TfrmShootSch.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QLineEdit>
#include <QPrinter>
#include <QScrollBar>
#include <QToolButton>

using namespace tb;
using namespace tb::test;

namespace {

// Preview pages of the one-line schedule of the example.
void fillPreview(TfrmPreview &preview, ScheduleDocument &doc, int *count)
{
    auto built = CreateSchedulePages(doc, {true, true, 1, 1, true});
    QVERIFY(built.ok());
    QVERIFY(built->report()
                .PreparePreview(preview.Previewer()->pages(),
                                PrinterGeometry::forPaper(tPapersize::alr_A4, TPrinterOrientation::poPortrait))
                .ok());
    *count = preview.Previewer()->pageCount();
    preview.ShowFirstPage();
}

// The pages of the preview the button opens (which is closed again at once).
int previewedPages(QAbstractButton *previewButton)
{
    int pages = 0;
    PreviewWindowHook = [&](TfrmPreview &preview) {
        pages = preview.Previewer()->pageCount();
        return false;
    };
    QTest::mouseClick(previewButton, Qt::LeftButton);
    PreviewWindowHook = nullptr;
    return pages;
}

int pdfPages(const QString &path)
{
    const QByteArray data = ReadFileBytes(path);
    return int(data.count("/Type /Page\n") + data.count("/Type /Page\r") + data.count("/Type /Page>>") +
               data.count("/Type /Page ") - data.count("/Type /Pages "));
}

} // namespace

class TestReportDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedKingdom));
        m_doc.setPrompter(&m_prompter);
        QVERIFY(OpenDocument(m_doc, ExampleSchedule).ok());
    }
    void cleanup() { m_preview.reset(); }
    void previewNavigation()
    {
        TfrmPreview &preview = filledPreview();
        QVERIFY(m_pages >= 3);
        const auto page = [this](int n) { return QStringLiteral("%1/%2").arg(n).arg(m_pages); };
        QCOMPARE(preview.windowTitle(), QStringLiteral("Torvanbridge - Print preview"));
        QCOMPARE(preview.counterText(), page(1));
        preview.resize(700, 500);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        // The buttons, with nothing before the first page and nothing after the last.
        for (const auto &[button, shown] : QList<std::pair<const char *, int>>{
                 {"spbPrev", 1}, {"spbNext", 2}, {"spbLast", m_pages}, {"spbNext", m_pages}, {"spbfirst", 1}}) {
            QTest::mouseClick(Child<QToolButton>(&preview, button), Qt::LeftButton);
            QCOMPARE(preview.counterText(), page(shown));
        }
        keepScreenshot(preview, QStringLiteral("preview"));
        QVERIFY(!preview.Previewer()->setCurrentPage(0));
        QVERIFY(!preview.Previewer()->setCurrentPage(m_pages + 1));
        // The keys; the window sees them first, even while the zoom box has the focus.
        for (const auto &[key, shown] : QList<std::pair<Qt::Key, int>>{
                 {Qt::Key_PageDown, 2}, {Qt::Key_End, m_pages}, {Qt::Key_PageUp, m_pages - 1}}) {
            QTest::keyClick(preview.Previewer(), key);
            QCOMPARE(preview.counterText(), page(shown));
        }
        auto *box = preview.findChild<QComboBox *>("cbxScale");
        box->setFocus();
        QTest::keyClick(box->lineEdit(), Qt::Key_Home);
        QCOMPARE(preview.counterText(), page(1));
    }
    void previewZoomBox_data()
    {
        Columns<QString, int>("typed", "zoom");
        Row("letters", "abc", 100);
        Row("too large", "300", 75);
        Row("too small", "10", 75);
        Row("in range", "60", 60);
    }
    void previewZoomBox()
    {
        auto [typed, zoom] = Fetch<QString, int>("typed", "zoom");
        TfrmPreview &preview = filledPreview();
        auto *box = preview.findChild<QComboBox *>("cbxScale");
        QCOMPARE(box->currentText(), QStringLiteral("100"));
        preview.Previewer()->setZoom(75);
        box->lineEdit()->setText(typed); // as if pasted: one change

        QCOMPARE(preview.Previewer()->zoom(), zoom);
    }
    void previewMouseZoomSteps()
    {
        TfrmPreview &preview = filledPreview();
        preview.resize(900, 700);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        tAlPreview *view = preview.Previewer();
        // A left click zooms in a step, a right click out, up to 200 and down to 50.
        for (const auto &[button, zoom] : QList<std::pair<Qt::MouseButton, int>>{{Qt::LeftButton, 150},
                                                                                 {Qt::LeftButton, 200},
                                                                                 {Qt::LeftButton, 200},
                                                                                 {Qt::RightButton, 150},
                                                                                 {Qt::RightButton, 100},
                                                                                 {Qt::RightButton, 75},
                                                                                 {Qt::RightButton, 50},
                                                                                 {Qt::RightButton, 50}}) {
            QTest::mouseClick(view->viewport(), button, {}, view->pageRect().center());
            QCOMPARE(view->zoom(), zoom);
        }
        QCOMPARE(preview.findChild<QComboBox *>("cbxScale")->currentText(), QStringLiteral("50"));
        view->setZoom(60); // between the steps: a click leaves it
        QTest::mouseClick(view->viewport(), Qt::LeftButton, {}, view->pageRect().center());
        QCOMPARE(view->zoom(), 60);
    }
    void previewScrollKeysAndClosing()
    {
        TfrmPreview &preview = filledPreview();
        preview.resize(700, 500);
        preview.show();
        QVERIFY(QTest::qWaitForWindowExposed(&preview));
        preview.Previewer()->setZoom(200);
        QScrollBar *h = preview.Previewer()->horizontalScrollBar();
        QScrollBar *v = preview.Previewer()->verticalScrollBar();
        QVERIFY(h->maximum() > 20 && v->maximum() > 20);
        // The arrows scroll ten pixels, within the bars' range.
        for (const auto &[key, bar, value] : QList<std::tuple<Qt::Key, QScrollBar *, int>>{{Qt::Key_Right, h, 10},
                                                                                           {Qt::Key_Right, h, 20},
                                                                                           {Qt::Key_Down, v, 10},
                                                                                           {Qt::Key_Left, h, 10},
                                                                                           {Qt::Key_Left, h, 0},
                                                                                           {Qt::Key_Left, h, 0},
                                                                                           {Qt::Key_Up, v, 0},
                                                                                           {Qt::Key_Up, v, 0}}) {
            QTest::keyClick(preview.Previewer(), key);
            QCOMPARE(bar->value(), value);
        }
        h->setValue(h->maximum() - 5);
        QTest::keyClick(preview.Previewer(), Qt::Key_Right);
        QCOMPARE(h->value(), h->maximum());
        // While printing, neither Escape nor closing closes the window.
        preview.Previewer()->setBusy(true);
        QTest::keyClick(preview.Previewer(), Qt::Key_Escape);
        QVERIFY(!preview.close());
        QVERIFY(preview.isVisible());
        preview.Previewer()->setBusy(false);
        QTest::keyClick(preview.Previewer(), Qt::Key_Escape);
        QVERIFY(!preview.isVisible());
    }
    void previewPrintsRecordedPages()
    {
        TfrmPreview &preview = filledPreview();
        QPrinter printer(QPrinter::HighResolution);
        printer.setOutputFormat(QPrinter::PdfFormat);
        const QString path = TempPath("printed-preview.pdf");
        printer.setOutputFileName(path);
        printer.setCopyCount(2);
        QVERIFY(preview.PrintPages(printer, 2, 3));
        QVERIFY(!preview.Previewer()->busy());
        QCOMPARE(printer.docName(), QStringLiteral("Torvanbridge - Print preview"));
        QCOMPARE(pdfPages(path), 2);
    }
    void scheduleDialogShowAndSpins()
    {
        TfrmShootSch dialog(m_doc);
        Ui::TfrmShootSch &ui = dialog.form();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(ui.DayLab->text(), QStringLiteral("(19 production days)"));
        QCOMPARE(ui.ToSpin->maximum(), 19);
        QVERIFY(ui.AllRadio->isChecked());
        keepScreenshot(dialog, QStringLiteral("TfrmShootSch"));
        // From past To moves To; To before From moves From; either chooses "Day".
        ui.FromSpin->setValue(5);
        QCOMPARE(ui.ToSpin->value(), 5);
        QVERIFY(ui.RangeRadio->isChecked());
        ui.AllRadio->setChecked(true);
        ui.ToSpin->setValue(3);
        QCOMPARE(ui.FromSpin->value(), 3);
        QVERIFY(ui.RangeRadio->isChecked());
        ui.OnelineRadio->setChecked(true);
        ui.ShootCheck->setChecked(false);
        const ScheduleReportOptions options = dialog.options();
        QVERIFY(options.oneLine && !options.allDays && !options.shootingDaysOnly);
        QCOMPARE(options.fromDay, 3);
        QCOMPARE(options.toDay, 3);
        // Shown again, the dialog opens on "All".
        dialog.hide();
        dialog.show();
        QVERIFY(ui.AllRadio->isChecked());
    }
    void scheduleDialogPrintsToPdfAndPreviews()
    {
        TfrmShootSch dialog(m_doc);
        Ui::TfrmShootSch &ui = dialog.form();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        ui.PrinterCombo->setCurrentText(PdfFileChoiceText());
        QVERIFY(dialog.printerChoice().toPdfFile());

        const int previewPages = previewedPages(ui.PreviewBut);
        QVERIFY(previewPages > 3);
        QVERIFY(dialog.isVisible());
        QVERIFY(!SharedPrintingProgress().isVisible());

        const QString path = TempPath("dialog-schedule.pdf");
        dialog.printerChoice().choosePdfFile = [&](QWidget *, const QString &suggested) {
            return suggested == QLatin1String("shooting-schedule.pdf") ? path : QString();
        };
        QTest::mouseClick(ui.PrintBut, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        // The same layout on the same paper: the PDF has the preview's pages.
        QCOMPARE(pdfPages(path), previewPages);
    }
    void breakdownDialogSpecificSheets()
    {
        TfrmPrintBS dialog(m_doc);
        Ui::TfrmPrintBS &ui = dialog.form();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(ui.SceneList->count(), 60);
        const StripRecord &first = m_doc.strips[ui.SceneList->item(0)->data(Qt::UserRole).toInt()];
        QCOMPARE(ui.SceneList->item(0)->text(),
                 first[StripField::StripId] + " - " + first[StripField::Location] + "  " + first[StripField::Synopsis]);
        QVERIFY(ui.AllRadio->isChecked());
        keepScreenshot(dialog, QStringLiteral("TfrmPrintBS"));

        // "Specific:" with nothing chosen prints nothing.
        m_prompter.prompts.clear();
        ui.SpecificRadio->setChecked(true);
        QTest::mouseClick(ui.PrintBut, Qt::LeftButton);
        QCOMPARE(m_prompter.texts(), QStringList{"No scene is chosen: there is nothing to print."});
        QVERIFY(dialog.isVisible());

        ui.SceneList->item(4)->setSelected(true);
        ui.SceneList->item(1)->setSelected(true);
        QCOMPARE(previewedPages(ui.PreviewBut), 2); // one sheet per scene
    }
    void elementSummaryDialogCategories()
    {
        TfrmElUse dialog(m_doc);
        Ui::TfrmElUse &ui = dialog.form();
        dialog.show();
        QVERIFY(QTest::qWaitForWindowExposed(&dialog));
        QCOMPARE(ui.FilterList->item(0)->checkState(), Qt::Checked);
        QCOMPARE(ui.FilterList->item(1)->checkState(), Qt::Unchecked);
        keepScreenshot(dialog, QStringLiteral("TfrmElUse"));
        ui.FilterList->item(3)->setCheckState(Qt::Checked);
        QCOMPARE(dialog.options().categories, QSet<int>({1, 4}));
        // The preview shows the title and the company, which are the first texts on the
        // page and black: dark pixels where they stand, left of the director's name.
        int darkPixels = -1;
        PreviewWindowHook = [&](TfrmPreview &preview) {
            preview.resize(900, 700);
            preview.show();
            QWidget *view = preview.Previewer()->viewport();
            QImage image(view->size(), QImage::Format_RGB32);
            view->render(&image);
            darkPixels = 0;
            for (int y = 20 + 28; y < 20 + 80; ++y)
                for (int x = 0; x < 400; ++x)
                    darkPixels += qGray(image.pixel(x, y)) < 80 ? 1 : 0;
            return false;
        };
        QTest::mouseClick(ui.PreviewBut, Qt::LeftButton);
        PreviewWindowHook = nullptr;
        QVERIFY2(darkPixels > 200, qPrintable(QString::number(darkPixels)));
        const QString path = TempPath("dialog-elements.pdf");
        ui.PrinterCombo->setCurrentText(PdfFileChoiceText());
        dialog.printerChoice().choosePdfFile = [&](QWidget *, const QString &) { return path; };
        ui.CopiesSpin->setValue(3); // a file holds one copy
        QTest::mouseClick(ui.PrintBut, Qt::LeftButton);
        QCOMPARE(dialog.result(), int(QDialog::Accepted));
        QCOMPARE(pdfPages(path), 1);
    }
    void dayOutOfDaysWindow()
    {
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, ExampleSchedule));
        TfrmDOD dialog(doc);
        dialog.resize(1100, 520);
        dialog.show();
        Ui::TfrmDOD &ui = dialog.form();
        const DayOutOfDaysGrid &grid = ui.DODGrid->grid();
        QVERIFY(grid.rowCount() > 3 && grid.dayColumns > 0);

        // Find a work cell; colour paints it green.
        QPoint work(-1, -1);
        for (int r = 3; r < grid.rowCount() && work.x() < 0; ++r)
            for (int c = 1; c <= grid.dayColumns && work.x() < 0; ++c)
                if (grid.cell(r, c).contains(u'W'))
                    work = QPoint(c, r);
        QVERIFY(work.x() > 0);
        QCOMPARE(ui.DODGrid->cellBackground(work.y(), work.x()), QColor(Qt::white));
        keepScreenshot(dialog, QStringLiteral("dood-window"));
        QTest::mouseClick(ui.ColorCheck, Qt::LeftButton);
        QCOMPARE(ui.DODGrid->cellBackground(work.y(), work.x()), QColor(176, 255, 160));
        keepScreenshot(dialog, QStringLiteral("dood-window-colour"));

        // "Show hold days" builds the grid anew from the schedule as it is now.
        for (int s = 1; s <= doc.strips.count(); ++s)
            doc.strips[s].set(StripField::Assignments, QString());
        QVERIFY(grid.cell(work.y(), work.x()).contains(u'W'));
        QTest::mouseClick(ui.HoldCheck, Qt::LeftButton);
        QVERIFY(!ui.HoldCheck->isChecked());
        QCOMPARE(ui.DODGrid->grid().cells.at(work.y()).mid(1).join(QString()), QString());
    }
    void perforatedSetup()
    {
        ScheduleDocument doc;
        Settings settings(TempPath(QStringLiteral("perf.ini")));
        settings.perfMargin = 6.0;
        settings.perfWidth = 9.0;
        TfrmPerfSetup dialog(doc, settings);
        dialog.show();
        Ui::TfrmPerfSetup &ui = dialog.form();
        QCOMPARE(ui.MargSpin->value(), 6.0);
        QCOMPARE(ui.StripSpin->value(), 90.0);
        keepScreenshot(dialog, QStringLiteral("perforated-setup"));

        // The calibration page prints with the numbers in the boxes.
        const QString calibration = TempPath(QStringLiteral("calibration.pdf"));
        dialog.choosePrinter = [calibration](QPrinter &printer, QWidget *) {
            printer.setOutputFormat(QPrinter::PdfFormat);
            printer.setOutputFileName(calibration);
            return true;
        };
        QTest::mouseClick(ui.CalibrateBut, Qt::LeftButton);
        QVERIFY(QFile(calibration).size() > 0);

        QTest::mouseClick(ui.DefaultBut, Qt::LeftButton);
        QCOMPARE(ui.MargSpin->value(), 5.2);
        QCOMPARE(ui.StripSpin->value(), 95.65);
        QTest::mouseClick(ui.OKBut, Qt::LeftButton);
        QCOMPARE(settings.perfMargin, 5.2);
        QCOMPARE(settings.perfWidth, 9.565);
        Settings reread(settings.path());
        reread.LoadSettings();
        QCOMPARE(reread.perfMargin, 5.2);
        QVERIFY(qAbs(reread.perfWidth - 9.565) < 1e-6);
    }
    void printBoardToPdf_data()
    {
        Columns<bool, bool, double>("perforated", "oneStrip", "zoomAfter");
        Row("perforated, all", true, false, 1.0);
        Row("plain, one strip", false, true, 1.5);
    }
    void printBoardToPdf()
    {
        auto [perforated, oneStrip] = Fetch<bool, bool>("perforated", "oneStrip");
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, ExampleSchedule));
        Settings settings(TempPath(QStringLiteral("print.ini")));
        TfrmPrintIt dialog(doc, settings);
        const QString out = TempPath(QStringLiteral("board-%1.pdf").arg(QTest::currentDataTag()));
        dialog.printerChoice().choosePdfFile = [out](QWidget *, const QString &) { return out; };
        dialog.show();
        Ui::TfrmPrintIt &ui = dialog.form();
        QCOMPARE(ui.FromCombo->count(), doc.strips.count());
        QCOMPARE(ui.ToCombo->currentIndex(), doc.strips.count() - 1);
        ui.PrinterCombo->setCurrentIndex(ui.PrinterCombo->count() - 1); // the PDF file
        ui.ScaleSpin->setValue(150);
        QCOMPARE(dialog.overallScale(), 1.5);
        if (perforated)
            QTest::mouseClick(ui.PerfRadio, Qt::LeftButton);
        if (oneStrip) {
            QTest::mouseClick(ui.StripsRadio, Qt::LeftButton);
            ui.FromCombo->setCurrentIndex(4);
            ui.ToCombo->setCurrentIndex(4);
        }
        if (perforated && !oneStrip)
            keepScreenshot(dialog, QStringLiteral("print-board-dialog"));
        QTest::mouseClick(ui.PrintBut, Qt::LeftButton);
        QVERIFY(!dialog.isVisible());
        QVERIFY(QFile::exists(out));
        QTEST(dialog.overallScale(), "zoomAfter");
        const BoardPrintResult &printed = dialog.lastPrint();
        if (oneStrip) {
            QCOMPARE(printed.pages.size(), 1);
            QCOMPARE(printed.pages.first().firstStrip, 5);
            QCOMPARE(printed.pages.first().lastStrip, 5);
        } else {
            QCOMPARE(printed.pages.last().lastStrip, doc.strips.count());
        }
    }

private:
    // A preview of the example's one-line schedule, made afresh for the test.
    TfrmPreview &filledPreview()
    {
        m_preview = std::make_unique<TfrmPreview>();
        fillPreview(*m_preview, m_doc, &m_pages);
        return *m_preview;
    }

    ScheduleDocument m_doc;
    ScriptedPrompter m_prompter;
    std::unique_ptr<TfrmPreview> m_preview;
    int m_pages = 0;
};

TB_TEST_MAIN(TestReportDialogs)
#include "tst_reportdialogs.moc"
