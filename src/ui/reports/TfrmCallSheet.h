#pragma once

#include "reports/CallSheet.h"
#include "ui/reports/ReportPrinting.h"

#include "ui/shell/DialogWithHelp.h"

#include <functional>
#include <memory>

class QListWidget;
class QPrinter;
class QTableWidget;
class QUrl;

namespace Ui {
class TfrmCallSheet;
}

namespace tb {

class ScheduleDocument;
class Settings;

// "Print Call Sheet": the sheet of one shooting day, filled from the schedule for the
// picked date, edited by hand, saved to and opened from call sheet files, previewed and
// printed. The sheet itself and everything done to it is the core's (reports/CallSheet.h);
// the dialog shows it in its controls and gathers it back.
class TfrmCallSheet : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmCallSheet(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmCallSheet() override;

    Ui::TfrmCallSheet &form() { return *ui; }
    // The preferences (weather page, the rest day warning's answer); none in some tests.
    void setSettings(Settings *settings) { m_settings = settings; }

    // The sheet as the controls hold it.
    CallSheet sheet() const;
    bool manualChange() const { return m_manualChange; }
    QTableWidget *scenePopup() const { return m_scenePopup; }
    QTableWidget *castPopup() const { return m_castPopup; }
    QListWidget *categoryPopup() const { return m_categoryPopup; }

    // The print dialog: false when cancelled; *copies is the number of copies asked for.
    std::function<bool(QPrinter &printer, int *copies)> runPrintDialog;
    // The save and open dialogs; an empty name when cancelled.
    std::function<QString(QWidget *parent, const QString &current)> chooseSaveFile;
    std::function<QString(QWidget *parent)> chooseOpenFile;
    // Opens the weather page in the desktop's browser.
    std::function<void(const QUrl &url)> openUrl;

public Q_SLOTS:
    void done(int result) override;

protected:
    void showEvent(QShowEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void FormShow();
    void PrintButClick();
    void PrevButClick();
    void SaveButClick();
    void OpenButClick();
    void NetButClick();
    void DatePickerChange();
    void DatePickerCloseUp();
    void ScenePopupClick(int row);
    void CastPopupClick(int row);
    void CategoryPopupClick(int row);

    // Shows the sheet in the controls; the pop-up lists are filled as well.
    void showSheet(const CallSheet &sheet);
    void refill();
    void DoTotalPages();
    bool CreatePages();
    void setManualChange();
    void hidePopups();
    void showScenePopup(int y);
    void showCastPopup(int row);
    void showCategoryPopup();
    bool gridKey(QTableWidget *grid, int key);
    void moveSceneRow(int from, int to);
    double pickedSerial() const;

    ScheduleDocument &m_doc;
    Settings *m_settings = nullptr;
    std::unique_ptr<Ui::TfrmCallSheet> ui;
    QTableWidget *m_scenePopup;
    QTableWidget *m_castPopup;
    QListWidget *m_categoryPopup;
    ReportPrinterChoice m_printer;
    BuiltReport m_built; // the template with its values, kept until the dialog closes
    bool m_manualChange = false;
    bool m_filling = false;
    double m_lastDate = 0;  // the date a change of the picker is compared with
    QString m_saveFileName; // the save dialog's file name, which Open reads as well
    int m_dragRow = -1;
};

} // namespace tb
