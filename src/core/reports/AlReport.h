#pragma once

// The banded report engine: a template form holding one TAlReport, its bands and the
// controls on them. Report code loads a template, pushes values into its named fields
// and asks the report to print or to record preview pages. The layout of every report
// lives in its template; nothing here knows a particular report.

#include "document/Result.h"

#include <QDateTime>
#include <QFont>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QHash>
#include <QImage>
#include <QList>
#include <QRawFont>
#include <QString>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class QPagedPaintDevice;

namespace tb {

struct DfmObject;
class ReportForm;
class ReportProgressBox;
class TAlPrinter;
class TDrawMetaFile;
struct PrinterGeometry;

// ---- Enumerations. Templates store these by name, so names and order are fixed. ----

enum class tPapersize { alr_A4, alr_A5, alr_Legal, alr_Letter };
enum class tAlBandType {
    alr_Title,
    alr_PageHeader,
    alr_DetailHeader,
    alr_Detail,
    alr_DetailFooter,
    alr_PageFooter,
    alr_ReportFooter,
    alr_NewPage,
    alr_GroupHeader,
    alr_GroupFooter
};
// alr_PageOfPages ("Page 3 of 12") comes after the first seven, so that the stored names
// of older templates keep their meaning.
enum class tAlSysDataType {
    alr_Time,
    alr_Date,
    alr_DateTime,
    alr_PageNum,
    alr_Counter,
    alr_Count,
    alr_Formname,
    alr_PageOfPages
};
enum class tAlRulerType { alr_none, alr_cmH, alr_cmHV, alr_cmV };
enum class tClipMode { cm_Clip, cm_Expand, cm_Overwrite };
enum class TAlignment { taLeftJustify, taRightJustify, taCenter };
enum class TShapeType { stRectangle, stSquare, stRoundRect, stRoundSquare, stEllipse, stCircle };
enum class TPrinterOrientation { poPortrait, poLandscape };

// Width and height of a paper size in whole millimetres. Legal and Letter are rounded
// down on purpose: the engine lays out within the whole millimetres of the sheet.
QSize PaperSizeMM(tPapersize paper);

// Design values are screen pixels of the template; output values are dots of the output
// resolution: (value x output dpi / design ppi) + 0.5, rounded half to even. The half is
// added before rounding on purpose, so that values lean upward.
int ScaleToOutput(int designValue, int outputDpi, int designPpi);
// Millimetres to dots: (dpi x mm / 25.4) + 0.5, rounded half to even.
int MillimetresToDots(double mm, int dpi);

// The font family a template's font name prints in (see AlReport.cpp).
QString PrintingFamily(const QString &family);

// Every report is laid out in dots of this resolution, whatever the output (see AlPrinter.h).
inline constexpr int LayoutDpi = 1200;

// Colours as templates store them: the toolkit's 32-bit colour values.
inline constexpr quint32 clBlack = 0x000000;
inline constexpr quint32 clWhite = 0xFFFFFF;
inline constexpr quint32 clBtnFace = 0xFF00000F;
inline constexpr quint32 clWindowText = 0xFF000008;
inline constexpr quint32 clNone = 0x1FFFFFFF;

struct AlFont
{
    QString name = QStringLiteral("Arial");
    int height = -11; // negative: character height in design pixels; positive: cell height
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeOut = false;
    quint32 color = clWindowText;
};

struct AlPen
{
    quint32 color = clBlack;
    int width = 1;
    Qt::PenStyle style = Qt::SolidLine;
};

struct AlBrush
{
    quint32 color = clWhite;
    Qt::BrushStyle style = Qt::SolidPattern;
};

// One line of text as it is drawn: shaped once, when it is measured, and drawn from the
// same glyphs, so that measuring and painting never disagree and never shape twice.
struct TextLine
{
    QString text;
    double width = 0.0;      // advance of the line, from the start of its indent
    QList<QGlyphRun> glyphs; // positioned from the line's left edge and its top (baseline at ascent)
};

// ---- Components ----

class tAlBand;

class AlComponent
{
public:
    enum class Kind { Report, Band, Label, Field, SysField, Shape, Image, DetailLink };
    virtual ~AlComponent() = default;
    virtual Kind kind() const = 0;

    QString Name;
    QString ClassName;
    int Tag = 0;
    int line = 0; // where the template declares it
};

class tAlControl : public AlComponent
{
public:
    int Left = 0;
    int Top = 0;
    int Width = 65;
    int Height = 17;
    // Stored in lower case on purpose: it is the name templates use.
    bool visible = true;
    bool VisibleInPreview = true;
    tAlBand *band = nullptr; // the band it sits on; null for a control placed on the form
};

class TAlLabel : public tAlControl
{
public:
    Kind kind() const override { return Kind::Label; }

    TAlignment Alignment = TAlignment::taLeftJustify;
    bool AutoSize = true;
    QString Caption;
    quint32 Color = clBtnFace;
    bool Enabled = true;
    AlFont Font;
    bool ParentFont = true;
    bool Transparent = true;
    bool WordWrap = false;
    // The name of the field this label names ("Director" for DirField): the label is
    // printed only where that field shows a value, so no label dangles before a blank.
    QString LabelFor;

    // The font the label is drawn in, in output units (set when the template loads).
    QFont outputFont;
    const QFontMetricsF &metrics() const;
    // The advance of a one-line text in the output font.
    double advance(const QString &text) const;
    // A paragraph (no line breaks) laid out in the output font, wrapped at the width when
    // it is above 0. Reports print the same texts again and again (names, headings,
    // categories), so the shaped lines are kept per label.
    const QList<TextLine> &paragraph(const QString &text, double width) const;

private:
    mutable std::optional<QFontMetricsF> m_metrics;
    mutable QHash<QString, QList<TextLine>> m_paragraphs; // one line each
    mutable QHash<QString, QList<TextLine>> m_wrapped;    // wrapped at m_paragraphWidth
    mutable double m_paragraphWidth = -1.0;
    mutable std::optional<QRawFont> m_rawFont;
};

// A data field: each printing of its band shows the value at the current row.
class TAlField : public TAlLabel
{
public:
    Kind kind() const override { return Kind::Field; }

    QStringList values;
    int row = 0;

    void rewind() { row = 0; }
    void next() { ++row; }
    bool hasValue() const { return row < values.size(); }
    QString valueAt(int r) const { return r >= 0 && r < values.size() ? values.at(r) : QString(); }
    QString value() const { return valueAt(row); }
};

class TAlSysField : public TAlLabel
{
public:
    Kind kind() const override { return Kind::SysField; }

    tAlSysDataType DataType = tAlSysDataType::alr_Time;
    QString formName; // alr_Formname: the template's file name, set when it loads
};

class TAlShape : public tAlControl
{
public:
    TAlShape()
    {
        Width = 65;
        Height = 65;
    }
    Kind kind() const override { return Kind::Shape; }

    AlBrush Brush;
    AlPen Pen;
    TShapeType Shape = TShapeType::stRectangle;
    // The name of a field on the same band whose value (a colour name such as "#FFFF80")
    // fills the shape on each row; blank or no colour: the brush's own colour.
    QString BrushField;
};

class tAlImage : public tAlControl
{
public:
    tAlImage()
    {
        Width = 100;
        Height = 100;
    }
    Kind kind() const override { return Kind::Image; }

    bool Autosize = false;
    bool Center = true;
    bool Stretch = true;
    QImage Picture;
};

class TAlDetailLink : public AlComponent
{
public:
    Kind kind() const override { return Kind::DetailLink; }

    tAlBand *GroupHeader = nullptr;
    tAlBand *GroupFooter = nullptr;
    tAlBand *GroupBand = nullptr; // the detail band it belongs to
    TAlField *DataSource = nullptr;

    // Run time: the data source's value at the last group break.
    QString lastValue;
};

class tAlBand : public AlComponent
{
public:
    Kind kind() const override { return Kind::Band; }

    int Left = 0;
    int Top = 0;
    int Width = 185;
    int Height = 41;
    QString Align = QStringLiteral("alNone");
    quint32 Color = clBtnFace;
    AlFont Font;
    bool ParentFont = true;
    bool Enabled = true;
    tAlBandType BandType = tAlBandType::alr_Detail;
    quint32 AltColor = 0;
    tAlRulerType Ruler = tAlRulerType::alr_none;
    tClipMode ClipMode = tClipMode::cm_Clip;
    int Columns = 1;
    int ColWidthMM = 0;
    bool FirstPageHeaderOnly = false;
    bool NotFirstPageHeader = false;

    QList<tAlControl *> controls; // in component order

    // Run time: the detail-header band that governs this band (itself when none), and
    // the detail link of a detail band.
    tAlBand *header = nullptr;
    TAlDetailLink *link = nullptr;
};

// Shows the progress of a layout run: the small box with a caption, a label and a
// cancel button. The desktop program supplies a window; without one nothing shows.
class ReportProgressBox
{
public:
    virtual ~ReportProgressBox() = default;
    virtual void open(const QString &caption, const QString &label, bool cancelVisible) = 0;
    virtual void setCaption(const QString &caption) = 0;
    virtual void setLabel(const QString &label) = 0;
    // Lets pending window messages run; true once the cancel button has been pressed.
    virtual bool keepAlive() = 0;
    virtual void close() = 0;
};

using TraceCallback = std::function<void(const QString &)>;

class TAlReport : public AlComponent
{
public:
    Kind kind() const override { return Kind::Report; }

    TPrinterOrientation Orientation = TPrinterOrientation::poPortrait;
    tPapersize Papersize = tPapersize::alr_A4;
    int LeftMarginMM = 0;
    int RightMarginMM = 0;
    QString ReportTitle;

    ReportForm *form() const { return m_form; }

    // Debug trace: with the flag on, every value pushed and every name not found is
    // reported through the callback.
    bool DebugTrace = false;
    TraceCallback OnTrace;
    bool tracing() const { return DebugTrace && OnTrace; }
    void trace(const QString &line) const
    {
        if (tracing())
            OnTrace(line);
    }

    // Appends the value to the first TAlField (in component order) whose name equals
    // the given one ignoring case. A name without a field is ignored: report code may
    // push values for fields that a template leaves out.
    void AddNamedValue(const QString &fieldName, const QString &value);
    // Appends the value to one field directly (traced like AddNamedValue, under the
    // field's own name).
    void AddFieldValue(TAlField &field, const QString &value);

    // Gives every image of the template the picture, in component order.
    void SetPicture(const QImage &picture);

    // The time the system fields show; the current time unless set.
    QDateTime now;
    // The title and author of a PDF file of the report; the report's title when blank.
    QString documentTitle;
    QString documentAuthor;

    // Runs the layout onto a real output (a printer or a PDF writer) and prints it.
    // False when the run was cancelled (the job is aborted) or the device failed.
    // abortJob, when given, cancels the device's job (a printer's abort).
    Result Print(QPagedPaintDevice &device, const std::function<void()> &abortJob = {});
    // Runs the layout in preview mode for the printer described, appending the pages to
    // the list (which owns them). A cancelled run keeps the pages made so far.
    Result PreparePreview(QList<TDrawMetaFile *> &pages, const PrinterGeometry &printer);

    // Progress box of the runs; none when null.
    ReportProgressBox *progressBox = nullptr;
    // Set by the progress box's cancel button (or by anyone) to stop the run.
    bool cancelled = false;

    void setForm(ReportForm *form)
    {
        m_form = form;
        m_fieldsByName.clear();
    }

private:
    TAlField *fieldNamed(const QString &name);

    ReportForm *m_form = nullptr;
    // The field each name pushed so far found (null: none), by the name as pushed.
    QHash<QString, TAlField *> m_fieldsByName;
};

// The template form: owns every component in component order (the order the template
// declares them, depth first).
class ReportForm
{
public:
    ReportForm() = default;
    ReportForm(const ReportForm &) = delete;
    ReportForm &operator=(const ReportForm &) = delete;

    QString path;
    QString fileName; // without folder
    int PixelsPerInch = 96;
    AlFont Font;

    std::vector<std::unique_ptr<AlComponent>> components;
    TAlReport *report = nullptr; // the first TAlReport

    QList<tAlBand *> bands() const;
    QList<TAlField *> fields() const;
    AlComponent *find(const QString &name) const; // first match ignoring case
};

// Builds a form from a parsed template. Fails on an unknown class or property, a value
// of the wrong kind, an unknown enumeration name or a reference to a missing component.
ResultOf<std::unique_ptr<ReportForm>> BuildReportForm(const DfmObject &root, const QString &path);

// Loads a template file. Fails when the file does not exist, does not parse, or holds
// no TAlReport; the parser's detail goes to the trace callback (when given). On success
// every alr_Formname system field gets the template's file name.
ResultOf<std::unique_ptr<ReportForm>> LoadTemplate(const QString &path, const TraceCallback &trace = {});

} // namespace tb
