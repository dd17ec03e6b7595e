#pragma once

#include "reports/DayOutOfDays.h"

#include "ui/shell/DialogWithHelp.h"

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
class TfrmDOD : public DialogWithHelp
{
    Q_OBJECT

public:
    explicit TfrmDOD(ScheduleDocument &doc, QWidget *parent = nullptr);
    ~TfrmDOD() override;

    Ui::TfrmDOD &form() { return *ui; }
    DayOutOfDaysOptions options() const;

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
