#include "document/ScheduleFile.h"

#include "document/AtomicWrite.h"
#include "document/DayCalculation.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringView>

#include <cmath>

namespace tb {

namespace {

constexpr int HeaderLineCount = 23;
constexpr int MaxNextStripId = 1000000000;
constexpr int HoldDaysLimit = 1000000;

// Calls back once per line; the document's values in file order. Shared by the
// writer and ScheduleFileLines so that there is one statement of the layout.
template <typename PutLine, typename Progress>
void writeLines(const ScheduleDocument &doc, PutLine &&putLine, Progress &&progress)
{
    // Records never hold a line break (their setter sees to it); a production value
    // that holds one is written with a blank instead, so that no later line shifts.
    const auto put = [&putLine](const QString &line) {
        if (Q_UNLIKELY(HasLineBreak(line)))
            putLine(OneLineValue(line));
        else
            putLine(line);
    };
    const ProductionValues &v = doc.values;
    put(QString::fromLatin1(ScheduleFileHeader));
    put(v.FileVersion);
    put(v.PictureTitle);
    put(v.Company);
    put(v.Producer);
    put(v.Director);
    put(v.FirstAD);
    put(v.ProductionManager);
    put(v.ScriptTitle);
    put(v.StartDate);
    put(v.CompanyAddress);
    put(v.LogoFile);
    put(legacy::FloatToText(v.BoardZoom));
    put(v.AutoRestDayRule);
    put(v.Reference);
    put(v.PreparedBy);
    put(QString::number(v.NextStripId));
    put(QString::number(v.HoldDays));
    put(QString()); // three reserved lines, always written empty
    put(QString());
    put(QString());
    const int s = doc.strips.count();
    const int e = doc.elements.count();
    put(QString::number(s));
    put(QString::number(e));
    const int total = s + e;
    for (int i = 1; i <= s; ++i) {
        const StripRecord &row = doc.strips[i];
        for (int f = 0; f < StripFieldCount; ++f)
            put(row.at(f));
        progress(100 * i / total);
    }
    for (int j = 1; j <= e; ++j) {
        const ElementRecord &row = doc.elements[j];
        for (int f = 0; f < ElementFieldCount; ++f)
            put(row.at(f));
        progress(100 * (s + j) / total);
    }
    for (int r = 1; r <= CrewRowCount; ++r) {
        const CrewRow &row = doc.crew[r];
        for (int f = 0; f < CrewFieldCount; ++f)
            put(row.at(f));
    }
}

// Reads lines one by one from decoded file text. A line ends at CR LF, LF or a lone CR.
class LineReader
{
public:
    explicit LineReader(QStringView text)
        : m_text(text)
    {}

    // False when the file has no more lines.
    bool next(QStringView *line)
    {
        if (m_pos >= m_text.size())
            return false;
        qsizetype end = m_pos;
        while (end < m_text.size() && m_text[end] != u'\n' && m_text[end] != u'\r')
            ++end;
        *line = m_text.mid(m_pos, end - m_pos);
        if (end < m_text.size()) {
            const bool cr = m_text[end] == u'\r';
            ++end;
            if (cr && end < m_text.size() && m_text[end] == u'\n')
                ++end;
        }
        m_pos = end;
        ++m_lineNumber;
        return true;
    }
    int lineNumber() const { return m_lineNumber; }

private:
    QStringView m_text;
    qsizetype m_pos = 0;
    int m_lineNumber = 0;
};

// Thrown inside the reader only, never across the interface: a line that is missing
// or does not hold the number it must. The detail, when there is one, says which
// limit a value passes; it follows the reader's message.
struct ReadFailure
{
    enum Cause { EndedEarly, NotANumber, OutOfRange } cause = EndedEarly;
    int line = 0;   // the line the reader wanted, from 1
    QString detail; // for OutOfRange: which limit the value passes
};

class DocumentReader
{
public:
    explicit DocumentReader(QStringView text)
        : m_lines(text)
    {}

    int lineNumber() const { return m_lines.lineNumber(); }

    QString text()
    {
        QStringView line;
        if (!m_lines.next(&line))
            throw ReadFailure{ReadFailure::EndedEarly, m_lines.lineNumber() + 1};
        return line.toString();
    }
    int integer()
    {
        bool ok = false;
        const int value = legacy::StrToInt(text(), &ok);
        if (!ok)
            throw ReadFailure{ReadFailure::NotANumber, m_lines.lineNumber()};
        return value;
    }
    double number()
    {
        bool ok = false;
        const double value = legacy::FloatFromText(text(), &ok);
        if (!ok)
            throw ReadFailure{ReadFailure::NotANumber, m_lines.lineNumber()};
        return value;
    }
    // A number that must lie in [low, high]; what stands for it is named in the message.
    int integerIn(int low, int high, const char *what)
    {
        const int value = integer();
        if (value < low || value > high)
            throw ReadFailure{ReadFailure::OutOfRange, lineNumber(),
                              QStringLiteral("Line %1 gives %2 as %3; it must lie between %4 and %5.")
                                  .arg(lineNumber())
                                  .arg(value)
                                  .arg(QLatin1String(what))
                                  .arg(low)
                                  .arg(high)};
        return value;
    }
    // The strip or element count: more than the table holds is said plainly.
    int count(int capacity, const char *what)
    {
        const int value = integer();
        if (value < 0)
            throw ReadFailure{ReadFailure::OutOfRange, lineNumber(),
                              QStringLiteral("Line %1 gives %2 as the number of %3.")
                                  .arg(lineNumber())
                                  .arg(value)
                                  .arg(QLatin1String(what))};
        if (value > capacity)
            throw ReadFailure{ReadFailure::OutOfRange, lineNumber(),
                              QStringLiteral("The file holds %1 %3; a schedule can hold at most %2 %3.")
                                  .arg(value)
                                  .arg(capacity)
                                  .arg(QLatin1String(what))};
        return value;
    }
    template <typename Record>
    void record(Record &row)
    {
        for (int f = 0; f < Record::FieldCount; ++f)
            row.setAt(f, text());
    }

private:
    LineReader m_lines;
};

void readBody(ScheduleDocument &doc, DocumentReader &in)
{
    ProductionValues &v = doc.values;
    v.FileVersion = in.text();
    v.PictureTitle = in.text();
    v.Company = in.text();
    v.Producer = in.text();
    v.Director = in.text();
    v.FirstAD = in.text();
    v.ProductionManager = in.text();
    v.ScriptTitle = in.text();
    v.StartDate = in.text();
    v.CompanyAddress = in.text();
    v.LogoFile = in.text();
    v.BoardZoom = in.number();
    // A missing or damaged zoom must never give an unusable board (nor one that is
    // not a number at all, or infinite).
    if (!(v.BoardZoom >= 0.2) || !std::isfinite(v.BoardZoom))
        v.BoardZoom = 1.0;
    doc.view().zoomChanged(v.BoardZoom);
    v.AutoRestDayRule = in.text();
    v.Reference = in.text();
    v.PreparedBy = in.text();
    // Serial numbers are counted up from here; far below the limit of int, so that
    // giving out the next one can never overflow.
    v.NextStripId = in.integerIn(0, MaxNextStripId, "the last strip serial number");
    v.HoldDays = in.integerIn(-HoldDaysLimit, HoldDaysLimit, "the hold days threshold");
    for (int i = 0; i < 3; ++i)
        in.text(); // reserved lines, whatever they hold
    const int s = in.count(MaxStrips, "strips");
    const int e = in.count(MaxElements, "elements");
    doc.strips.setCount(s);
    doc.elements.setCount(e);
    for (int i = 1; i <= s; ++i) {
        in.record(doc.strips[i]);
        doc.status().setProgress(100 * i / s);
        if (i % 64 == 0)
            doc.status().keepAlive();
    }
    for (int j = 1; j <= e; ++j)
        in.record(doc.elements[j]);
    for (int r = 1; r <= CrewRowCount; ++r)
        in.record(doc.crew[r]);
}

// The end of an open that read the whole file: the document is shown under its path.
void finishOpen(ScheduleDocument &doc, const QString &path, bool addToRecentFiles)
{
    doc.view().resetBoard();
    doc.FileName = path;
    doc.view().setTitle(UpdateTitle(doc));
    doc.status().setProgress(0);
    RecalculateDays(doc);
    // The board, its scroll bars and the commands show the opened document.
    doc.view().documentChanged(doc, {});
    if (addToRecentFiles)
        doc.view().addRecentFile(path);
    doc.status().setBusy(false);
}

} // namespace

QStringList ScheduleFileLines(const ScheduleDocument &doc)
{
    QStringList lines;
    lines.reserve(HeaderLineCount + 200 + 20 * (doc.strips.count() + doc.elements.count()));
    writeLines(
        doc, [&](const QString &line) { lines.append(line); }, [](int) {});
    return lines;
}

namespace {

QString scheduleText(const ScheduleDocument &doc, StatusSink *status)
{
    QString text;
    text.reserve(64 * 1024 + 24 * (doc.strips.count() + doc.elements.count()) * 20);
    int lastPercent = -1;
    writeLines(
        doc,
        [&](const QString &line) {
            text += line;
            text += QLatin1String("\r\n");
        },
        [&](int percent) {
            if (status && percent != lastPercent) {
                lastPercent = percent;
                status->setProgress(percent);
            }
        });
    return text;
}

// Saving goes through a temporary file that replaces the document only once it is
// complete and on the disk, so a failed or interrupted save leaves the earlier file
// whole and the message says why. (The earlier edition wrote in place and could leave
// half a file behind.)
Result writeAtomically(const QString &path, const QString &text)
{
    return WriteFileAtomically(path, legacy::EncodeFileText(text));
}

Result saveFailure(const ScheduleDocument &doc, const QString &path, const Result &written)
{
    const QString message = WithCause(QStringLiteral("Error saving file ") + path +
                                          QStringLiteral(". Try again using SaveAs from the file menu."),
                                      written);
    doc.prompter().error(message);
    StatusSink &status = doc.status();
    status.setProgress(0);
    status.setPanelText(StatusSink::MessagePanel, QStringLiteral("Error saving file."));
    status.setBusy(false);
    return Result::failure(message);
}

// What went wrong with a file that could not be opened, in plain words.
QString readFailureCause(const ReadFailure &failure)
{
    switch (failure.cause) {
    case ReadFailure::EndedEarly:
        return QStringLiteral("The file is cut short: it ends at line ") + QString::number(failure.line - 1) +
               QStringLiteral(", where more of the schedule should follow.");
    case ReadFailure::NotANumber:
        return QStringLiteral("The file is damaged: line ") + QString::number(failure.line) +
               QStringLiteral(" should hold a number and does not.");
    case ReadFailure::OutOfRange:
        return failure.detail;
    }
    return QString();
}

// A failed open: the message, and the document left empty and untitled.
Result openFailure(ScheduleDocument &doc, const QString &message, const QString &statusText)
{
    StatusSink &status = doc.status();
    // Nothing of the file stays: what was read would otherwise stand under the file's
    // name, unmodified, and the next Save would write the damage over the file.
    NewDocument(doc);
    doc.prompter().error(message, /*beep=*/true);
    status.setPanelText(StatusSink::MessagePanel, statusText);
    status.setProgress(0);
    status.setBusy(false);
    return Result::failure(message);
}

} // namespace

Result SaveDocument(ScheduleDocument &doc, const QString &path)
{
    StatusSink &status = doc.status();
    status.setBusy(true);
    status.setPanelText(StatusSink::MessagePanel, QStringLiteral("Saveing file..."));
    status.keepAlive();

    const Result written = writeAtomically(path, scheduleText(doc, &status));
    if (!written)
        return saveFailure(doc, path, written);

    ClearModified(doc);
    doc.view().setTitle(UpdateTitle(doc));
    // The list gets the document's own name, not the path written.
    doc.view().addRecentFile(doc.FileName);
    status.setProgress(0);
    status.setPanelText(StatusSink::MessagePanel, QStringLiteral("Saved OK."));
    status.setBusy(false);
    return Result::success();
}

Result WriteScheduleCopy(const ScheduleDocument &doc, const QString &path)
{
    const Result written = writeAtomically(path, scheduleText(doc, nullptr));
    if (!written)
        return saveFailure(doc, path, written);
    return Result::success();
}

Result OpenDocument(ScheduleDocument &doc, const QString &path, const OpenOptions &options)
{
    StatusSink &status = doc.status();
    status.setBusy(true);
    status.setPanelText(StatusSink::MessagePanel, QStringLiteral("Opening file..."));
    // The old document is gone from here on, even if the file proves unreadable.
    NewDocument(doc);

    const QString name = QDir::toNativeSeparators(path);
    // The earlier edition called an unreadable file "badly corrupted"; say why.
    const auto unreadable = [&](const QString &reason) {
        return openFailure(doc,
                           QStringLiteral("Error opening file ") + name +
                               QStringLiteral(".\r\rThe file cannot be read: ") + reason + QLatin1Char('.'),
                           QStringLiteral("Error opening file."));
    };
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        if (!QFileInfo::exists(path))
            return unreadable(QStringLiteral("there is no such file"));
        if (QFileInfo(path).isDir())
            return unreadable(QStringLiteral("it is a folder"));
        if (!QFileInfo(path).isReadable())
            return unreadable(QStringLiteral("permission denied"));
        return unreadable(file.errorString());
    }
    const QString text = legacy::DecodeFileText(file.readAll());
    if (file.error() != QFileDevice::NoError)
        return unreadable(file.errorString());
    file.close();

    DocumentReader in(text);
    QString header;
    try {
        header = in.text();
    } catch (const ReadFailure &) {
    }
    if (header != QLatin1String(ScheduleFileHeader)) {
        // "Torvanbrigde" is the program's own spelling of this message.
        return openFailure(doc,
                           QStringLiteral("Torvanbrigde cannot read this file. It may be the wrong type, or perhaps "
                                          "it is corrupted.\r\r") +
                               name +
                               QStringLiteral(" is not a Torvanbridge schedule: its first line is not the "
                                              "line a schedule starts with."),
                           QStringLiteral("Error reading file."));
    }

    try {
        readBody(doc, in);
    } catch (const ReadFailure &failure) {
        // The earlier edition named no file here (its name was still blank).
        return openFailure(
            doc,
            QStringLiteral("Error opening file ") + name + QStringLiteral(".\r\r") + readFailureCause(failure) +
                QStringLiteral("\r\rThis file cannot be opened by Torvanbridge - it may be badly corrupted, or the "
                               "system may be unstable. Try again after re-booting the computer."),
            QStringLiteral("Error opening file."));
    }

    doc.view().setTitle(UpdateTitle(doc));
    status.setPanelText(StatusSink::MessagePanel, QStringLiteral("Opened OK."));
    finishOpen(doc, path, options.addToRecentFiles);
    return Result::success();
}

} // namespace tb
