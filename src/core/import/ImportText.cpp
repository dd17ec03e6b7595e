#include "import/ImportText.h"

#include "document/LegacyText.h"

#include <QFile>

namespace tb {

ResultOf<QStringList> ReadImportText(const QString &path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return ResultOf<QStringList>::failure(file.errorString());
    const QByteArray bytes = file.readAll();
    if (file.error() != QFileDevice::NoError)
        return ResultOf<QStringList>::failure(file.errorString());
    QString text = legacy::DecodeFileText(bytes);
    if (text.startsWith(QChar(0xFEFF)))
        text.remove(0, 1);
    return SplitImportLines(text);
}

QStringList SplitImportLines(const QString &text)
{
    QStringList lines;
    const qsizetype n = text.size();
    qsizetype begin = 0;
    for (qsizetype i = 0; i < n; ++i) {
        const QChar c = text.at(i);
        if (c != u'\n' && c != u'\r')
            continue;
        lines.append(text.mid(begin, i - begin));
        if (c == u'\r' && i + 1 < n && text.at(i + 1) == u'\n')
            ++i;
        begin = i + 1;
    }
    if (begin < n)
        lines.append(text.mid(begin));
    return lines;
}

QString TrimImportLine(const QString &line)
{
    qsizetype first = 0;
    qsizetype last = line.size();
    while (first < last && line.at(first).unicode() <= u' ')
        ++first;
    while (last > first && line.at(last - 1).unicode() <= u' ')
        --last;
    if (first == 0 && last == line.size())
        return line;
    return line.mid(first, last - first);
}

QString CopyChars(const QString &text, qsizetype index, qsizetype count)
{
    const qsizetype length = text.size();
    qsizetype start = index < 1 ? 0 : qMin(index - 1, length);
    if (count <= 0)
        return QString();
    count = qMin(count, length - start);
    return text.mid(start, count);
}

} // namespace tb
