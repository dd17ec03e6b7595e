// The day out of days window and the board print dialogs, driven through their widgets.

#include "DialogTestSupport.h"

#include "document/ScheduleFile.h"
#include "document/Settings.h"
#include "ui/reports/DodGridView.h"
#include "ui/reports/TfrmDOD.h"
#include "ui/reports/TfrmPerfSetup.h"
#include "ui/reports/TfrmPrintIt.h"
#include "ui_TfrmDOD.h"
#include "ui_TfrmPerfSetup.h"
#include "ui_TfrmPrintIt.h"

#include <QPrinter>
#include <QRegularExpression>

using namespace tb;
using namespace tb::test;

namespace {

int castCount(const ScheduleDocument &doc)
{
    int n = 0;
    for (int e = 1; e <= doc.elements.count(); ++e)
        n += doc.elements[e][ElementField::CategoryNumber] == QLatin1String("1");
    return n;
}

} // namespace

class TestBoardPrintDialogs : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dayOutOfDaysWindow()
    {
        ScheduleDocument doc;
        QVERIFY(OpenDocument(doc, ExampleSchedule));
        TfrmDOD dialog(doc);
        dialog.resize(1100, 520);
        dialog.show();
        Ui::TfrmDOD &ui = dialog.form();
        const DayOutOfDaysGrid &grid = ui.DODGrid->grid();
        QCOMPARE(grid.rowCount(), 3 + castCount(doc));
        QVERIFY(grid.dayColumns > 0);

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
        const int row = work.y();
        const int element = grid.elements.at(row - 3);
        for (int s = 1; s <= doc.strips.count(); ++s) {
            QString list = doc.strips[s][StripField::Assignments];
            list.replace(QRegularExpression(QStringLiteral("(^|,)%1(?=,|$)").arg(element)), QString());
            doc.strips[s].set(StripField::Assignments, list);
        }
        QVERIFY(grid.cell(row, work.x()).contains(u'W'));
        QTest::mouseClick(ui.HoldCheck, Qt::LeftButton);
        QVERIFY(!ui.HoldCheck->isChecked());
        QCOMPARE(ui.DODGrid->grid().cells.at(row).mid(1).join(QString()), QString());
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
        const QString folder = qEnvironmentVariable("TB_SCREENSHOTS");
        if (!folder.isEmpty())
            QFile::copy(calibration, folder + QStringLiteral("/calibration.pdf"));

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
        Row("plain, all", false, false, 1.5);
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
        QVERIFY(dialog.printerChoice().toPdfFile());
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
};

TB_TEST_MAIN(TestBoardPrintDialogs)
#include "tst_boardprintdialogs.moc"
