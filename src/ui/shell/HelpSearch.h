#pragma once

#include <QList>
#include <QString>

namespace tb {

// One page of the help that holds every word searched for.
struct HelpSearchHit
{
    QString page;    // file name in the help folder ("board.html")
    QString title;   // the page's title
    QString excerpt; // the text around the first word found, plain
    int score = 0;   // how often the words occur; more is better
};

// Searches the help pages (the bundled ":/help" folder unless another folder is named)
// for every word of the query, without regard to letter case. Pages holding all the
// words come back best first; an empty query finds nothing.
QList<HelpSearchHit> SearchHelpPages(const QString &query, const QString &folder = QStringLiteral(":/help"));

// The hits as a page of links for the help browser.
QString HelpSearchResultsHtml(const QString &query, const QList<HelpSearchHit> &hits);

} // namespace tb
