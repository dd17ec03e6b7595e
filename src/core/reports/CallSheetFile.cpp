#include "reports/CallSheetFile.h"

#include "document/AtomicWrite.h"
#include "document/LegacyText.h"

#include <QFile>

namespace tb {

namespace {

// Every cell of the grids in file order.
template <typename Sheet, typename Visit>
void forEachCell(Sheet &sheet, Visit &&visit)
{
    for (auto *grid : {&sheet.scenes, &sheet.cast, &sheet.extras, &sheet.crew, &sheet.other}) {
        for (auto &row : grid->rows) {
            for (int c = 0; c < grid->columns; ++c)
                visit(row, c);
        }
    }
}

// Lines of decoded file text; past the end every line reads as an empty text.
class LineSource
{
public:
    explicit LineSource(const QString &text)
        : m_text(text)
    {}

    QString next()
    {
        if (m_pos >= m_text.size())
            return QString();
        qsizetype end = m_pos;
        while (end < m_text.size() && m_text[end] != u'\n' && m_text[end] != u'\r')
            ++end;
        const QString line = m_text.mid(m_pos, end - m_pos);
        if (end < m_text.size()) {
            const bool cr = m_text[end] == u'\r';
            ++end;
            if (cr && end < m_text.size() && m_text[end] == u'\n')
                ++end;
        }
        m_pos = end;
        return line;
    }

private:
    const QString &m_text;
    qsizetype m_pos = 0;
};

ResultOf<QString> readText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return Result::failure(QString::fromLatin1(CallSheetFileError));
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return Result::failure(QString::fromLatin1(CallSheetFileError));
    return legacy::DecodeFileText(bytes);
}

// The first two lines of every call sheet file: the header, then the date.
ResultOf<double> readHeaderAndDate(LineSource &in)
{
    if (in.next() != QLatin1String(CallSheetFileHeader))
        return Result::failure(QString::fromLatin1(CallSheetFileBadHeader));
    bool ok = false;
    const double date = legacy::FloatFromText(in.next(), &ok);
    if (!ok)
        return Result::failure(QString::fromLatin1(CallSheetFileError));
    return date;
}

} // namespace

QStringList CallSheetFileLines(const CallSheet &sheet)
{
    QStringList lines{QString::fromLatin1(CallSheetFileHeader),
                      legacy::FloatToText(sheet.date),
                      sheet.weather,
                      sheet.unitCall,
                      sheet.costumeCall,
                      sheet.makeupCall,
                      sheet.wrap};
    forEachCell(sheet, [&lines](const QStringList &row, int c) { lines.append(row.value(c)); });
    lines.append(legacy::JoinCommaText(sheet.notes));
    return lines;
}

// The one place a call sheet file is written.
Result WriteCallSheetFile(const CallSheet &sheet, const QString &path)
{
    QString text;
    for (const QString &line : CallSheetFileLines(sheet)) {
        text += line;
        text += QLatin1String("\r\n");
    }
    // Whole or not at all: a failed write leaves the earlier file as it was.
    const Result written = WriteFileAtomically(path, legacy::EncodeFileText(text));
    if (!written)
        return Result::failure(WithCause(QString::fromLatin1(CallSheetFileError), written));
    return Result::success();
}

Result ReadCallSheetFile(CallSheet &sheet, const QString &path)
{
    ResultOf<QString> text = readText(path);
    if (!text)
        return Result::failure(text.message());
    LineSource in(*text);
    const ResultOf<double> date = readHeaderAndDate(in);
    if (!date)
        return Result::failure(date.message());
    sheet.date = *date;
    sheet.weather = in.next();
    sheet.unitCall = in.next();
    sheet.costumeCall = in.next();
    sheet.makeupCall = in.next();
    sheet.wrap = in.next();
    forEachCell(sheet, [&in](QStringList &row, int c) {
        while (row.size() <= c)
            row.append(QString());
        row[c] = in.next();
    });
    sheet.notes = legacy::SplitCommaText(in.next());
    return Result::success();
}

ResultOf<double> CallSheetFileDate(const QString &path)
{
    ResultOf<QString> text = readText(path);
    if (!text)
        return Result::failure(text.message());
    LineSource in(*text);
    return readHeaderAndDate(in);
}

} // namespace tb
