#include "CliCommand.h"

#include "board/BoardExport.h"
#include "board/BoardPrinting.h"
#include "board/DrawBoard.h"
#include "document/AtomicWrite.h"
#include "document/ScheduleFile.h"
#include "document/Settings.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>

namespace tb::cli {

namespace {

// The resolution a PDF board is laid out at: one board pixel is one screen pixel, so
// the page holds what a window of the same size would show.
constexpr int PdfResolution = 96;

// What the window's paint box shows: header, element column, colour, no printing
// rules, at the size asked for.
struct BoardRender
{
    int width = 1920;
    int height = 1080;
    BoardDrawOptions options;
    BoardStyle style;
};

// The board style of the board and export commands: the user's preferences, read as
// the window reads them (a value that does not convert is reported and its default
// used), with the strip colours of "--colours" instead of the preferences' when given:
// the paper stripboard's (classic) or the white strips of a program without
// preferences (plain). Font, description lines and day numbering stay the user's.
// False for a colours name that is neither.
bool userStyle(CliContext &ctx, const ArgParser &args, BoardStyle *style)
{
    const QString colours = args.value(QStringLiteral("--colours"));
    BoardStyle override;
    if (colours == QLatin1String("classic"))
        override = ClassicBoardStyle();
    else if (args.has(QStringLiteral("--colours")) && colours != QLatin1String("plain"))
        return false;
    Settings settings;
    for (const QString &problem : settings.LoadSettings())
        ctx.err << problem << Qt::endl;
    *style = StyleFromSettings(settings);
    if (args.has(QStringLiteral("--colours"))) {
        style->background = override.background;
        style->text = override.text;
    }
    return true;
}

bool readInt(const ArgParser &args, const QString &name, int low, int high, int *value, QString *error)
{
    if (!args.has(name))
        return true;
    bool ok = false;
    const int n = args.value(name).toInt(&ok);
    if (!ok || n < low || n > high) {
        *error = QStringLiteral("%1 must be a whole number from %2 to %3").arg(name).arg(low).arg(high);
        return false;
    }
    *value = n;
    return true;
}

BoardDrawResult drawInto(ScheduleDocument &doc, const BoardRender &r, QPainter &painter)
{
    painter.setClipRect(QRect(0, 0, r.width, r.height));
    return DrawBoard(doc, r.style, r.options, painter);
}

// Renders into memory and writes the file in one checked step, so a failed render or
// a failed write leaves no file, or the earlier one untouched.
QString renderBoard(ScheduleDocument &doc, const BoardRender &r, const QString &out, bool pdf, BoardDrawResult *drawn)
{
    QBuffer file;
    file.open(QIODevice::WriteOnly);
    if (pdf) {
        QPdfWriter writer(&file);
        writer.setResolution(PdfResolution);
        writer.setCreator(QStringLiteral("Torvanbridge"));
        writer.setTitle(doc.values.PictureTitle.isEmpty() ? QStringLiteral("Production board")
                                                          : doc.values.PictureTitle);
        const QSizeF points(r.width * 72.0 / PdfResolution, r.height * 72.0 / PdfResolution);
        writer.setPageLayout(QPageLayout(QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch),
                                         QPageLayout::Portrait, QMarginsF()));
        QPainter painter;
        if (!painter.begin(&writer))
            return QStringLiteral("Cannot start a PDF in %1").arg(out);
        *drawn = drawInto(doc, r, painter);
        painter.end();
    } else {
        QImage image(r.width, r.height, QImage::Format_RGB32);
        if (image.isNull())
            return QStringLiteral("A board of %1 x %2 pixels is too large to draw").arg(r.width).arg(r.height);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            *drawn = drawInto(doc, r, painter);
        }
        if (!image.save(&file, "PNG"))
            return QStringLiteral("Cannot write %1").arg(out);
    }
    file.close();
    const Result written = WriteFileAtomically(out, file.data());
    if (!written)
        return QStringLiteral("Cannot write %1: %2").arg(out, written.message());
    return {};
}

int runBoard(CliContext &ctx, const CliCommand &command, const QStringList &argv)
{
    ArgParser args;
    args.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--scale"))
        .valueOption(QStringLiteral("--width"))
        .valueOption(QStringLiteral("--height"))
        .valueOption(QStringLiteral("--first-strip"))
        .valueOption(QStringLiteral("--first-element"))
        .valueOption(QStringLiteral("--colours"));
    QString error;
    if (!args.parse(argv, &error))
        return UsageError(ctx, command, error);
    if (args.positional().size() != 1)
        return UsageError(ctx, command, QStringLiteral("needs one schedule file"));
    const QString out = args.value(QStringLiteral("-o"));
    if (out.isEmpty())
        return UsageError(ctx, command, QStringLiteral("needs -o OUT.png or -o OUT.pdf"));
    const QString suffix = QFileInfo(out).suffix().toLower();
    if (suffix != QLatin1String("png") && suffix != QLatin1String("pdf"))
        return UsageError(ctx, command, QStringLiteral("the output must end in .png or .pdf"));

    BoardRender r;
    if (args.has(QStringLiteral("--scale"))) {
        bool ok = false;
        r.options.scale = args.value(QStringLiteral("--scale")).toDouble(&ok);
        if (!ok || !(r.options.scale >= 0.1 && r.options.scale <= 10))
            return UsageError(ctx, command, QStringLiteral("--scale must be a number from 0.1 to 10"));
    }
    if (!readInt(args, QStringLiteral("--width"), 1, 20000, &r.width, &error) ||
        !readInt(args, QStringLiteral("--height"), 1, 20000, &r.height, &error) ||
        !readInt(args, QStringLiteral("--first-strip"), 1, MaxStrips, &r.options.firstStrip, &error) ||
        !readInt(args, QStringLiteral("--first-element"), 1, MaxElements, &r.options.firstElement, &error))
        return UsageError(ctx, command, error);
    if (!userStyle(ctx, args, &r.style))
        return UsageError(ctx, command, QStringLiteral("--colours must be classic or plain"));

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, args.positional().first()))
        return ExitUserError;

    BoardDrawResult drawn;
    const QString failed = renderBoard(doc, r, out, suffix == QLatin1String("pdf"), &drawn);
    if (!failed.isEmpty()) {
        ctx.err << failed << Qt::endl;
        return ExitUserError;
    }
    const int firstStrip = r.options.firstStrip;
    const int firstElement = r.options.firstElement;
    const int lastStrip = drawn.lastStrip.value_or(0);
    ctx.out << out << ": " << r.width << " x " << r.height << " at " << qRound(r.options.scale * 100) << "%, ";
    if (doc.strips.count() > 0 && lastStrip >= firstStrip)
        ctx.out << "strips " << firstStrip << "-" << lastStrip;
    else
        ctx.out << "no strips";
    ctx.out << ", ";
    if (doc.elements.count() > 0 && drawn.lastElement >= firstElement)
        ctx.out << "element rows " << firstElement << "-" << drawn.lastElement;
    else
        ctx.out << "no element rows";
    ctx.out << Qt::endl;
    return ExitOk;
}

int runExport(CliContext &ctx, const CliCommand &command, const QStringList &argv)
{
    ArgParser args;
    args.valueOption(QStringLiteral("-o")).valueOption(QStringLiteral("--colours"));
    QString error;
    if (!args.parse(argv, &error))
        return UsageError(ctx, command, error);
    if (args.positional().size() != 1)
        return UsageError(ctx, command, QStringLiteral("needs one schedule file"));
    const QString out = args.value(QStringLiteral("-o"));
    const std::optional<BoardExportFormat> format = BoardExportFormatOf(out);
    if (!format)
        return UsageError(ctx, command, QStringLiteral("needs -o OUT.csv or -o OUT.html"));
    BoardStyle style;
    if (!userStyle(ctx, args, &style))
        return UsageError(ctx, command, QStringLiteral("--colours must be classic or plain"));

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, args.positional().first()))
        return ExitUserError;
    const Result written = ExportBoard(doc, style, *format, out);
    if (!written) {
        ctx.err << written.message() << Qt::endl;
        return ExitUserError;
    }
    return ExitOk;
}

// The resolution of a printed board in a PDF file, as a printer's would be.
constexpr int PrintResolution = 300;
// The unprintable edge of the sheet a PDF stands for, in millimetres: a common
// laser printer's.
constexpr double PrintOffsetMm = 4.0;

bool readMillimetres(const ArgParser &args, const QString &name, double low, double high, double *value, QString *error)
{
    if (!args.has(name))
        return true;
    bool ok = false;
    const double n = args.value(name).toDouble(&ok);
    if (!ok || !(n >= low && n <= high)) {
        *error = QStringLiteral("%1 must be a number from %2 to %3").arg(name).arg(low).arg(high);
        return false;
    }
    *value = n;
    return true;
}

int runPrintBoard(CliContext &ctx, const CliCommand &command, const QStringList &argv)
{
    ArgParser args;
    args.valueOption(QStringLiteral("-o"))
        .valueOption(QStringLiteral("--from"))
        .valueOption(QStringLiteral("--to"))
        .valueOption(QStringLiteral("--margin"))
        .valueOption(QStringLiteral("--strip-width"))
        .valueOption(QStringLiteral("--scale"))
        .valueOption(QStringLiteral("--paper"))
        .flag(QStringLiteral("--perforated"))
        .flag(QStringLiteral("--portrait"))
        .flag(QStringLiteral("--landscape"))
        .flag(QStringLiteral("--bw"))
        .flag(QStringLiteral("--no-date"))
        .flag(QStringLiteral("--no-page-number"))
        .flag(QStringLiteral("--all-headers"));
    QString error;
    if (!args.parse(argv, &error))
        return UsageError(ctx, command, error);
    if (args.positional().size() != 1)
        return UsageError(ctx, command, QStringLiteral("needs one schedule file"));
    const QString out = args.value(QStringLiteral("-o"));
    if (out.isEmpty() || QFileInfo(out).suffix().toLower() != QLatin1String("pdf"))
        return UsageError(ctx, command, QStringLiteral("needs -o OUT.pdf"));
    if (args.has(QStringLiteral("--portrait")) && args.has(QStringLiteral("--landscape")))
        return UsageError(ctx, command, QStringLiteral("--portrait or --landscape, not both"));
    if (args.has(QStringLiteral("--from")) != args.has(QStringLiteral("--to")))
        return UsageError(ctx, command, QStringLiteral("--from and --to go together"));
    QPageSize paper(QPageSize::A4);
    const QString paperName = args.value(QStringLiteral("--paper"), QStringLiteral("a4")).toLower();
    if (paperName == QLatin1String("letter"))
        paper = QPageSize(QPageSize::Letter);
    else if (paperName != QLatin1String("a4"))
        return UsageError(ctx, command, QStringLiteral("--paper is a4 or letter"));

    // The perforated stock as the setup dialog keeps it, unless told otherwise.
    Settings settings;
    for (const QString &problem : settings.LoadSettings())
        ctx.err << problem << Qt::endl;
    BoardPrintOptions options;
    options.perforated = args.has(QStringLiteral("--perforated"));
    options.perfMargin = settings.perfMargin;
    options.perfWidth = settings.perfWidth;
    options.showDate = !args.has(QStringLiteral("--no-date"));
    options.showPageNumber = !args.has(QStringLiteral("--no-page-number"));
    options.headerOnEveryPage = args.has(QStringLiteral("--all-headers"));
    options.blackAndWhite = args.has(QStringLiteral("--bw"));
    options.printed = PrintingTime();
    int scalePercent = 100;
    if (!readMillimetres(args, QStringLiteral("--margin"), 1, 25, &options.perfMargin, &error) ||
        !readMillimetres(args, QStringLiteral("--strip-width"), 0.1, 10, &options.perfWidth, &error) ||
        !readInt(args, QStringLiteral("--scale"), 50, 200, &scalePercent, &error) ||
        !readInt(args, QStringLiteral("--from"), 1, MaxStrips, &options.firstStrip, &error) ||
        !readInt(args, QStringLiteral("--to"), 1, MaxStrips, &options.lastStrip, &error))
        return UsageError(ctx, command, error);

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, args.positional().first()))
        return ExitUserError;
    if (doc.strips.count() == 0) {
        ctx.err << "Nothing to print: the schedule has no strips." << Qt::endl;
        return ExitUserError;
    }
    if (args.has(QStringLiteral("--from")) &&
        (options.lastStrip > doc.strips.count() || options.firstStrip > options.lastStrip)) {
        ctx.err << QStringLiteral("The strips %1 to %2 are not within the board's strips 1 to %3.")
                       .arg(options.firstStrip)
                       .arg(options.lastStrip)
                       .arg(doc.strips.count())
                << Qt::endl;
        return ExitUserError;
    }
    options.overallScale = scalePercent / 100.0;

    QSaveFile file(out);
    if (!file.open(QIODevice::WriteOnly)) {
        ctx.err << QStringLiteral("Cannot write %1: %2").arg(out, file.errorString()) << Qt::endl;
        return ExitUserError;
    }
    BoardPrintResult printed;
    {
        QPdfWriter writer(&file);
        writer.setResolution(PrintResolution);
        writer.setCreator(QStringLiteral("Torvanbridge"));
        writer.setTitle(BoardPrintJobTitle(doc));
        const QMarginsF edge(PrintOffsetMm, PrintOffsetMm, PrintOffsetMm, PrintOffsetMm);
        writer.setPageLayout(
            QPageLayout(paper, args.has(QStringLiteral("--portrait")) ? QPageLayout::Portrait : QPageLayout::Landscape,
                        edge, QPageLayout::Millimeter));
        printed = PrintBoard(doc, StyleFromSettings(settings), options, writer);
    }
    if (!printed.problem.isEmpty()) {
        ctx.err << printed.problem << Qt::endl;
        return ExitUserError;
    }
    if (!file.commit()) {
        ctx.err << QStringLiteral("Cannot write %1: %2").arg(out, file.errorString()) << Qt::endl;
        return ExitUserError;
    }
    ctx.out << out << ": " << (options.perforated ? "perforated stock" : "plain paper") << ", board at ("
            << printed.left << ", " << printed.top << ") dots, scale " << QString::number(printed.scale, 'f', 4)
            << Qt::endl;
    for (int p = 0; p < printed.pages.size(); ++p)
        ctx.out << "page " << p + 1 << ": strips " << printed.pages.at(p).firstStrip << "-"
                << printed.pages.at(p).lastStrip << Qt::endl;
    return ExitOk;
}

} // namespace

void AddBoardCommands(CommandList &commands)
{
    CliCommand board{QStringLiteral("board"),
                     QStringLiteral("board IN -o OUT.png|OUT.pdf [--scale S] [--width W] [--height H] "
                                    "[--first-strip N] [--first-element N] [--colours classic|plain]"),
                     QStringLiteral("Draw the production board as the window shows it (1920 x 1080 at scale 1 "
                                    "unless told) with the strip colours, font, description lines and day "
                                    "numbering of your preferences (Torvanbridge.ini), to a PNG image or a "
                                    "one-page PDF. --colours classic draws paper stripboard colours, --colours "
                                    "plain the white strips of a program without preferences, instead of the "
                                    "preferences' colours."),
                     {}};
    board.run = [board](CliContext &ctx, const QStringList &args) { return runBoard(ctx, board, args); };
    commands.append(board);

    CliCommand exportBoard{
        QStringLiteral("export"),
        QStringLiteral("export IN -o OUT.csv|OUT.html [--colours classic|plain]"),
        QStringLiteral("Export the board as File > Export board does: a spreadsheet (CSV, one row per strip with its "
                       "day, date, scene details, notes and one column per element category) or one web page "
                       "(HTML, the production details and the days as strips in their board colours: the "
                       "preferences' colours, or --colours classic or plain as for board)."),
        {}};
    exportBoard.run = [exportBoard](CliContext &ctx, const QStringList &args) {
        return runExport(ctx, exportBoard, args);
    };
    commands.append(exportBoard);

    CliCommand printBoard{
        QStringLiteral("print-board"),
        QStringLiteral("print-board IN -o OUT.pdf [--from N --to N] [--perforated] [--margin MM] "
                       "[--strip-width MM] [--scale PCT] [--portrait|--landscape] [--paper a4|letter] [--bw] "
                       "[--no-date] [--no-page-number] [--all-headers]"),
        QStringLiteral("Print the production board as the print dialog does, to a PDF file (landscape A4 "
                       "unless told, 300 dots per inch, 4 mm unprintable edges), on plain paper or on perforated "
                       "strip stock (margin and strip width from your settings unless given), and list the "
                       "strips on each page."),
        {}};
    printBoard.run = [printBoard](CliContext &ctx, const QStringList &args) {
        return runPrintBoard(ctx, printBoard, args);
    };
    commands.append(printBoard);
}

} // namespace tb::cli
