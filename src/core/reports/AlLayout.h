#pragma once

// The layout run of the report engine, apart from painting: which band goes on which
// page at which place, and what each control on it shows. The result is a list of pages
// of placed bands; painting them (AlPaint.h) only draws what is placed. Both halves are
// tested on their own, and a layout painted onto any target gives the same pages.

#include "reports/AlReport.h"

#include <QColor>
#include <QList>
#include <QRawFont>
#include <QRect>
#include <QStringList>

#include <functional>

class QPainter;

namespace tb {

// The page the layout fills, in output units (dots of LayoutDpi).
struct LayoutPage
{
    int pageWidth = 0;
    int pageHeight = 0;
    int offsetLeft = 0; // printing offsets of the target (0 in preview)
    int offsetTop = 0;
    bool preview = false;
};

struct PlacedControl
{
    const tAlControl *control = nullptr;
    QRect rect; // where it is drawn, in output units on the page
    bool clipped = false;
    QRect clip;            // when clipped: the part of the page it may draw on
    QString text;          // labels and fields: the text shown
    QList<TextLine> lines; // the text broken into the lines drawn, with their advances
                           // and shaped glyphs (no glyphs: shaped when drawn)
    bool cut = false;      // part of the text could not be shown: it ends in an ellipsis
    QColor brush;          // shapes: the row's colour from their BrushField (invalid: none)
};

struct PlacedBand
{
    const tAlBand *band = nullptr;
    QRect rect;
    quint32 background = clNone; // the band's colour, or the alternate row colour
    int row = -1;                // detail rows: the row number from 0
    QList<PlacedControl> controls;
};

struct LaidOutPage
{
    QList<PlacedBand> bands;
};

struct ReportLayout
{
    QList<LaidOutPage> pages;
    bool cancelled = false;
};

// Runs the layout of the report onto pages of the given size. Rewinds every field first,
// so a report can be laid out again. Cancelling through the report's progress box (or
// its cancelled flag) stops the run and keeps the pages made so far.
ReportLayout LayOutReport(TAlReport &report, const LayoutPage &page);

// Breaks a text into the lines drawn: at its line breaks (CR LF, CR or LF; one line
// break at the very end adds no empty line) and, when width > 0, between words so that
// each line fits the width (a word longer than the width stays whole). The blanks that
// indent a line indent its wrapped parts too; blank lines at the end are dropped.
// Each paragraph is shaped once, in linear time; the label's kept lines are used when given.
QList<TextLine> BreakText(const QString &text, const QFont &font, double width, const TAlLabel *label = nullptr);
QStringList BreakTextLines(const QString &text, const QFont &font, double width);

// One paragraph (no line breaks) shaped in the font and, when width > 0, wrapped.
QList<TextLine> LayOutParagraph(const QString &paragraph, const QFont &font, double width);
// The same with the font's raw form given (made once per label).
QList<TextLine> LayOutParagraph(const QString &paragraph, const QFont &font, const QRawFont &raw, double width);

// The text shortened to fit the width with an ellipsis at its end; with force, the
// ellipsis is added even when the text fits (the lines after it were cut).
QString ElideLine(const QString &text, const QFontMetricsF &metrics, double width, bool force);

// What a label of fixed size shows of a text: the lines laid out at its width and how many
// its height holds (when fewer than the lines, the last one shown ends in an ellipsis).
struct LabelFit
{
    QList<TextLine> lines;
    int room = 0;  // lines
    int width = 0; // output units
    bool fits() const
    {
        if (lines.size() > room)
            return false;
        for (const TextLine &line : lines)
            if (line.width > width)
                return false;
        return true;
    }
};
LabelFit FitLabelText(const TAlLabel &label, const QString &text, int designPpi);

// Draws a laid-out page; the painter works in output units.
void PaintPage(QPainter &painter, const LaidOutPage &page);

} // namespace tb
