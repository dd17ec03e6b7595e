#include "ui/shell/HelpSearch.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>
#include <QTextDocument>

#include <algorithm>

namespace tb {

namespace {

struct HelpPageText
{
    QString page;
    QString title;
    QString text;
};

HelpPageText readPage(const QString &folder, const QString &fileName)
{
    QFile file(QDir(folder).filePath(fileName));
    if (!file.open(QIODevice::ReadOnly))
        return {fileName, fileName, QString()};
    QTextDocument document;
    document.setHtml(QString::fromUtf8(file.readAll()));
    QString title = document.metaInformation(QTextDocument::DocumentTitle).trimmed();
    if (title.isEmpty())
        title = fileName;
    return {fileName, title, document.toPlainText().simplified()};
}

QString excerptAround(const QString &text, int at, int length)
{
    constexpr int Context = 70;
    const int from = std::max(0, at - Context);
    const int to = std::min(int(text.size()), at + length + Context);
    QString excerpt = text.mid(from, to - from);
    if (from > 0)
        excerpt.prepend(QStringLiteral("... "));
    if (to < text.size())
        excerpt.append(QStringLiteral(" ..."));
    return excerpt;
}

} // namespace

QList<HelpSearchHit> SearchHelpPages(const QString &query, const QString &folder)
{
    const QStringList words = query.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
    QList<HelpSearchHit> hits;
    if (words.isEmpty())
        return hits;
    const QStringList pages = QDir(folder).entryList({QStringLiteral("*.html")}, QDir::Files, QDir::Name);
    for (const QString &fileName : pages) {
        const HelpPageText page = readPage(folder, fileName);
        int score = 0;
        int first = -1;
        int firstLength = 0;
        bool all = true;
        for (const QString &word : words) {
            const int count = int(page.text.count(word, Qt::CaseInsensitive));
            const int titleCount = int(page.title.count(word, Qt::CaseInsensitive));
            if (count == 0 && titleCount == 0) {
                all = false;
                break;
            }
            // A word in the title counts as much as ten in the text.
            score += count + 10 * titleCount;
            const int at = int(page.text.indexOf(word, 0, Qt::CaseInsensitive));
            if (at >= 0 && (first < 0 || at < first)) {
                first = at;
                firstLength = int(word.size());
            }
        }
        if (!all)
            continue;
        hits.append(
            {page.page, page.title, first >= 0 ? excerptAround(page.text, first, firstLength) : QString(), score});
    }
    std::stable_sort(hits.begin(), hits.end(),
                     [](const HelpSearchHit &a, const HelpSearchHit &b) { return a.score > b.score; });
    return hits;
}

QString HelpSearchResultsHtml(const QString &query, const QList<HelpSearchHit> &hits)
{
    QString html = QStringLiteral("<html><head><title>Search: ") + query.toHtmlEscaped() +
                   QStringLiteral("</title></head><body><h2>Search: ") + query.toHtmlEscaped() +
                   QStringLiteral("</h2>");
    if (hits.isEmpty()) {
        html += QStringLiteral("<p>No help page holds all of these words.</p>");
    } else {
        html += QStringLiteral("<p>") + QString::number(hits.size()) +
                (hits.size() == 1 ? QStringLiteral(" page holds") : QStringLiteral(" pages hold")) +
                QStringLiteral(" all of these words:</p>");
        for (const HelpSearchHit &hit : hits)
            html += QStringLiteral("<p><a href=\"qrc:/help/") + hit.page + QStringLiteral("\"><b>") +
                    hit.title.toHtmlEscaped() + QStringLiteral("</b></a><br>") + hit.excerpt.toHtmlEscaped() +
                    QStringLiteral("</p>");
    }
    html += QStringLiteral("<p><a href=\"qrc:/help/contents.html\">Contents</a></p></body></html>");
    return html;
}

} // namespace tb
