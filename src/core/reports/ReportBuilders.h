#pragma once

// The reports built from the schedule: the shooting and one-line schedules, breakdown
// sheets and the element summary. Each loads its template, pushes the document's values
// into the template's named fields and hands back the filled report, ready to print,
// preview or write as PDF. The dialogs only gather the choices passed in here.

#include "reports/AlReport.h"

#include "board/BoardStyle.h"

#include "document/Result.h"
#include "document/ScheduleDocument.h"

#include <QImage>
#include <QList>
#include <QSet>
#include <QString>

#include <functional>
#include <memory>

namespace tb {

// The shared progress window of report building: a label and a bar.
class PrintingProgress
{
public:
    virtual ~PrintingProgress() = default;
    virtual void setText(const QString &text) = 0;
    virtual void setMaximum(int maximum) = 0;
    virtual void setPosition(int position) = 0;
    virtual void showProgress() = 0;
    virtual void hideProgress() = 0;
    // Lets pending window messages run.
    virtual void keepAlive() {}
};

struct ReportBuildContext
{
    // With a callback, the report's debug trace is on: every value pushed and every
    // field name not found are reported through it, and so is the detail of a template
    // that does not load.
    TraceCallback trace;
    PrintingProgress *progress = nullptr;
    // The template file to use; blank = the report's own template in the template folders.
    QString templatePath;
};

// A filled report: the template form with its values. nothingToPrint is set when the
// choices leave nothing to print (no strip on the first day asked for, no sheet chosen);
// the report is then not printed at all.
struct BuiltReport
{
    std::unique_ptr<ReportForm> form;
    bool nothingToPrint = false;
    int rows = 0; // detail rows pushed (strips, sheets or elements)

    TAlReport &report() const { return *form->report; }
};

// The production logo of the production details, or a null image when there is
// none or it cannot be read.
QImage LoadLogo(const ScheduleDocument &doc);

// ---- Shooting schedule and one-line schedule ----

struct ScheduleReportOptions
{
    bool oneLine = false; // "Oneline schedule" instead of "Full shooting schedule"
    bool allDays = true;  // "All" instead of "Day" From "to" To
    int fromDay = 1;      // read also with "All": the start strip is found from it
    int toDay = 1;
    bool shootingDaysOnly = true; // "Shooting days only"
};

// The number of production days the dialog offers (at least 1).
int ScheduleDayCount(const ScheduleDocument &doc);

// Builds the schedule pages (CreatePages of the schedule dialog). A template that does
// not load and a day field that is no number are reported through the prompter and
// returned as the failure.
ResultOf<BuiltReport> CreateSchedulePages(ScheduleDocument &doc, const ScheduleReportOptions &options,
                                          const ReportBuildContext &context = {});

// ---- Breakdown sheets ----

struct BreakdownListItem
{
    int row = 0;  // the strip row the item stands for
    QString text; // StripId " - " Location "  " Synopsis
};

// One item per scene strip in board order, as the dialog lists them.
QList<BreakdownListItem> BreakdownListItems(const ScheduleDocument &doc);

struct BreakdownReportOptions
{
    bool all = true; // "All" instead of "Specific:"
    QList<int> rows; // "Specific:": the strip rows of the selected items, in list order
    // The board's colours: each sheet's heading takes its strip's colour from them.
    BoardStyle style;
};

ResultOf<BuiltReport> CreateBreakdownPages(ScheduleDocument &doc, const BreakdownReportOptions &options,
                                           const ReportBuildContext &context = {});

// ---- Element summary ----

struct ElementSummaryOptions
{
    QSet<int> categories{1}; // category numbers ticked in "Categories to print :"
};

ResultOf<BuiltReport> CreateElementSummaryPages(ScheduleDocument &doc, const ElementSummaryOptions &options,
                                                const ReportBuildContext &context = {});

// ---- Shared by the builders ----

namespace reportdetail {

// Loads the template for a builder: the failure message is shown and returned.
ResultOf<std::unique_ptr<ReportForm>> LoadBuilderTemplate(ScheduleDocument &doc, const char *fileName,
                                                          const ReportBuildContext &context,
                                                          const std::function<QString(const QString &path)> &message);

// The frame a builder runs in: busy and the progress window from the start until
// finish(), which the frame's end calls as well. The logo is read before the progress
// shows, as each report has always done.
class BuilderRun
{
public:
    BuilderRun(ScheduleDocument &doc, const ReportBuildContext &context, const QString &progressText, int maximum);
    ~BuilderRun();
    BuilderRun(const BuilderRun &) = delete;
    BuilderRun &operator=(const BuilderRun &) = delete;

    // Loads the template into a fresh report with the logo set. A failure has been shown
    // (see LoadBuilderTemplate) and has finished the run.
    ResultOf<BuiltReport> load(const char *fileName, const std::function<QString(const QString &path)> &message);
    // Moves the progress bar on and lets pending window messages run.
    void step(int position);
    // Hides the progress window and ends busy; only the first call counts.
    void finish();

private:
    ScheduleDocument &m_doc;
    const ReportBuildContext &m_context;
    QImage m_logo;
    bool m_finished = false;
};

// Lines as a text of the string-list form: each line followed by CR LF.
QString LinesText(const QStringList &lines);

// A whole number read from a field, as the text-to-number routine reads it; failure
// carries its conversion message ("'x' is not a valid integer value").
ResultOf<int> FieldNumber(const QString &text);

} // namespace reportdetail

} // namespace tb
