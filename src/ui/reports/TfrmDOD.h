#pragma once

#include "reports/DayOutOfDays.h"

#include <QDialog>

#include <functional>
#include <memory>

class QPrinter;

namespace Ui {
class TfrmDOD;
}

namespace tb {

class ScheduleDocument;

// "Day out of days": the chart of the days each cast member (or the elements of
// another category) works, with hold days, colours, totals and printing.
class TfrmDOD : public QDialog
{
    Q_OBJECT

public:
    explicit TfrmDOD(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmDOD() override;

    Ui::TfrmDOD &form() { return *ui; }
    DayOutOfDaysOptions options() const;

    // Opens a help page (F1); set by whoever shows the dialog.
    std::function<void(const QString &page)> showHelp;
    // Asks for the printer; false when the user cancels. Tests replace the print dialog.
    std::function<bool(QPrinter &printer, QWidget *parent)> choosePrinter;

    // Builds the grid anew from the schedule.
    void rebuild();

protected:
    void showEvent(QShowEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

private:
    void PrintButClick();
    void fillCategories();

    ScheduleDocument &m_doc;
    std::unique_ptr<Ui::TfrmDOD> ui;
};

} // namespace tb
