#include "CliCommand.h"

#include "board/BoardExport.h"
#include "board/DrawBoard.h"
#include "document/AtomicWrite.h"
#include "document/ScheduleFile.h"

#include <QBuffer>
#include <QFileInfo>
#include <QImage>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

namespace tb::cli {

namespace {

// The resolution a PDF board is laid out at: one board pixel is one screen pixel, so
// the page holds what a window of the same size would show.
constexpr int PdfResolution = 96;

struct BoardRender
{
    double scale = 1.0;
    int width = 1920;
    int height = 1080;
    int firstStrip = 1;
    int firstElement = 1;
    BoardStyle style;
};

// The strip colours of the --colours option: classic or plain; false for anything else.
bool styleNamed(const QString &name, BoardStyle *style)
{
    if (name == QLatin1String("classic"))
        *style = ClassicBoardStyle();
    else if (name == QLatin1String("plain"))
        *style = BoardStyle();
    else
        return false;
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

QString drawInto(ScheduleDocument &doc, const BoardRender &r, QPainter &painter)
{
    painter.setClipRect(QRect(0, 0, r.width, r.height));
    // What the window's paint box shows: header, element column, colour, no printing rules.
    return DrawBoard(doc, r.style, r.firstStrip, r.firstElement, -1, true, true, false, true, r.scale, 0, 0, painter);
}

// Renders into memory and writes the file in one checked step, so a failed render or
// a failed write leaves no file, or the earlier one untouched.
QString renderBoard(ScheduleDocument &doc, const BoardRender &r, const QString &out, bool pdf, QString *lastDrawn)
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
        *lastDrawn = drawInto(doc, r, painter);
        painter.end();
    } else {
        QImage image(r.width, r.height, QImage::Format_RGB32);
        if (image.isNull())
            return QStringLiteral("A board of %1 x %2 pixels is too large to draw").arg(r.width).arg(r.height);
        image.fill(Qt::white);
        {
            QPainter painter(&image);
            *lastDrawn = drawInto(doc, r, painter);
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
        r.scale = args.value(QStringLiteral("--scale")).toDouble(&ok);
        if (!ok || !(r.scale >= 0.1 && r.scale <= 10))
            return UsageError(ctx, command, QStringLiteral("--scale must be a number from 0.1 to 10"));
    }
    if (!readInt(args, QStringLiteral("--width"), 1, 20000, &r.width, &error) ||
        !readInt(args, QStringLiteral("--height"), 1, 20000, &r.height, &error) ||
        !readInt(args, QStringLiteral("--first-strip"), 1, MaxStrips, &r.firstStrip, &error) ||
        !readInt(args, QStringLiteral("--first-element"), 1, MaxElements, &r.firstElement, &error))
        return UsageError(ctx, command, error);
    if (!styleNamed(args.value(QStringLiteral("--colours"), QStringLiteral("classic")), &r.style))
        return UsageError(ctx, command, QStringLiteral("--colours must be classic or plain"));

    ScheduleDocument doc;
    doc.setPrompter(&ctx.prompter);
    if (!OpenDocument(doc, args.positional().first()))
        return ExitUserError;

    QString lastDrawn;
    const QString failed = renderBoard(doc, r, out, suffix == QLatin1String("pdf"), &lastDrawn);
    if (!failed.isEmpty()) {
        ctx.err << failed << Qt::endl;
        return ExitUserError;
    }
    const int lastStrip = lastDrawn.left(3).trimmed().toInt();
    const int lastRow = lastDrawn.mid(3).trimmed().toInt();
    ctx.out << out << ": " << r.width << " x " << r.height << " at " << qRound(r.scale * 100) << "%, ";
    if (doc.strips.count() > 0 && lastStrip >= r.firstStrip)
        ctx.out << "strips " << r.firstStrip << "-" << lastStrip;
    else
        ctx.out << "no strips";
    ctx.out << ", ";
    if (doc.elements.count() > 0 && lastRow >= r.firstElement)
        ctx.out << "element rows " << r.firstElement << "-" << lastRow;
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
    if (!styleNamed(args.value(QStringLiteral("--colours"), QStringLiteral("classic")), &style))
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

} // namespace

void AddBoardCommands(CommandList &commands)
{
    CliCommand board{QStringLiteral("board"),
                     QStringLiteral("board IN -o OUT.png|OUT.pdf [--scale S] [--width W] [--height H] "
                                    "[--first-strip N] [--first-element N] [--colours classic|plain]"),
                     QStringLiteral("Draw the production board as the window shows it (1920 x 1080 at scale 1 "
                                    "unless told, classic strip colours) to a PNG image or a one-page PDF."),
                     {}};
    board.run = [board](CliContext &ctx, const QStringList &args) { return runBoard(ctx, board, args); };
    commands.append(board);

    CliCommand exportBoard{
        QStringLiteral("export"),
        QStringLiteral("export IN -o OUT.csv|OUT.html [--colours classic|plain]"),
        QStringLiteral("Export the board as File > Export board does: a spreadsheet (CSV, one row per strip with its "
                       "day, date, scene details, notes and one column per element category) or one web page "
                       "(HTML, the production details and the days as strips in their board colours)."),
        {}};
    exportBoard.run = [exportBoard](CliContext &ctx, const QStringList &args) {
        return runExport(ctx, exportBoard, args);
    };
    commands.append(exportBoard);
}

} // namespace tb::cli
