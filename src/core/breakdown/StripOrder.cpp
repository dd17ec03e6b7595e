#include "breakdown/StripOrder.h"

#include "document/DocumentEdit.h"
#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QCollator>

#include <algorithm>
#include <numeric>

namespace tb {

namespace {

// The number a scene number starts with: 12 for "12A", -3 for "-3", 0 for "A".
qint64 leadingNumber(const QString &text)
{
    qsizetype i = 0;
    const qsizetype n = text.size();
    while (i < n && text.at(i) == u' ')
        ++i;
    bool negative = false;
    if (i < n && (text.at(i) == u'-' || text.at(i) == u'+')) {
        negative = text.at(i) == u'-';
        ++i;
    }
    qint64 value = 0;
    for (; i < n && text.at(i) >= u'0' && text.at(i) <= u'9'; ++i) {
        value = value * 10 + (text.at(i).unicode() - u'0');
        if (value > 0x7fffffffLL) // beyond any row or scene number; stop growing
            break;
    }
    return negative ? -value : value;
}

// Sorts rows by precomputed keys with a stable sort: what a bubble sort that swaps
// only strictly greater neighbours would give, in n log n.
template <typename Key>
void stableSortByKeys(QList<SortRow> &rows, const QList<Key> &keys)
{
    QList<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int a, int b) { return keys.at(a) < keys.at(b); });
    QList<SortRow> sorted;
    sorted.reserve(rows.size());
    for (int i : order)
        sorted.append(rows.at(i));
    rows = std::move(sorted);
}

StripRecord bannerStrip(const QString &text, const QString &days)
{
    StripRecord strip;
    strip.set(StripField::StripKind, StripKinds::Banner);
    strip.set(StripField::DayCount, days);
    strip.set(StripField::Synopsis, text);
    return strip;
}

} // namespace

// ---- Sorting ----------------------------------------------------------------

QStringList SortKeyNames()
{
    return {QStringLiteral("Strip number"), QStringLiteral("Scene number"), QStringLiteral("Location"),
            QStringLiteral("Day / Night"),  QStringLiteral("Int / Ext"),    QStringLiteral("Synopsis")};
}

QList<SortRow> SortPreviewRows(const ScheduleDocument &doc)
{
    QList<SortRow> rows;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        const StripRecord &strip = doc.strips[i];
        if (!strip.isScene())
            continue;
        rows.append({QString::number(i), strip[StripField::SceneNumber], strip[StripField::Location],
                     strip[StripField::DayNight], strip[StripField::IntExt], strip[StripField::Synopsis]});
    }
    return rows;
}

bool HasNonSceneStrips(const ScheduleDocument &doc)
{
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (!doc.strips[i].isScene())
            return true;
    }
    return false;
}

void SortRowsByColumn(QList<SortRow> &rows, int column)
{
    if (column < 0 || column >= SortColumn::Count || rows.size() < 2)
        return;
    if (column == SortColumn::Strip || column == SortColumn::Scene) {
        QList<qint64> keys;
        keys.reserve(rows.size());
        for (const SortRow &row : rows)
            keys.append(leadingNumber(row.at(column)));
        stableSortByKeys(rows, keys);
        return;
    }
    // The locale's comparison with case counted; sort keys make each comparison a
    // byte comparison.
    QCollator collator;
    collator.setCaseSensitivity(Qt::CaseSensitive);
    QList<QCollatorSortKey> keys;
    keys.reserve(rows.size());
    for (const SortRow &row : rows)
        keys.append(collator.sortKey(row.at(column)));
    QList<int> order(rows.size());
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(), [&keys](int a, int b) { return keys.at(a).compare(keys.at(b)) < 0; });
    QList<SortRow> sorted;
    sorted.reserve(rows.size());
    for (int i : order)
        sorted.append(rows.at(i));
    rows = std::move(sorted);
}

void SortRowsByKeys(QList<SortRow> &rows, int highest, int next, int lowest)
{
    // Each pass keeps the order of equal rows, so sorting by the least important key
    // first leaves the earlier passes deciding the ties of the later ones.
    if (lowest != SortColumn::None)
        SortRowsByColumn(rows, lowest);
    if (next != SortColumn::None)
        SortRowsByColumn(rows, next);
    SortRowsByColumn(rows, highest);
}

bool WarnSortDeletesDividers(ScheduleDocument &doc)
{
    const Answer answer = doc.prompter().question(
        MessageKind::Warning,
        QStringLiteral("As you probably know, your schedule contains one or more Day Dividers. However, their "
                       "positioning will be meaningless once you sort the strips, so the dividers will be deleted if "
                       "you continue. \r\rAre you sure you wish to delete these dividers and sort the rest of the "
                       "strips?"),
        Buttons::YesAbort);
    return answer == Answer::Yes;
}

void UpdateStrips(ScheduleDocument &doc, const QList<SortRow> &rows)
{
    DocumentEdit edit(doc, QStringLiteral("sort strips"));
    doc.status().setBusy(true);
    const StripTable scratch = doc.strips; // shares the rows; nothing is copied yet
    const int oldCount = scratch.count();
    const int n = int(std::min<qsizetype>(rows.size(), MaxStrips));
    for (int r = 1; r <= n; ++r) {
        bool ok = false;
        const int from = legacy::StrToInt(rows.at(r - 1).value(SortColumn::Strip), &ok);
        doc.strips[r] = ok && from >= 1 && from <= oldCount ? scratch[from] : StripRecord();
    }
    doc.strips.setCount(n);
    doc.status().setBusy(false);
    // The day numbers of the sorted strips are derived again from their new order
    // when the edit ends.
    edit.scrollToStrip(1);
}

void SortStrips(ScheduleDocument &doc, int highest, int next, int lowest)
{
    QList<SortRow> rows = SortPreviewRows(doc);
    SortRowsByKeys(rows, highest, next, lowest);
    // Either answer sorts: Abort only marks the dialog as cancelled, and the strips
    // are updated all the same. The program has always done this, and it is kept.
    if (HasNonSceneStrips(doc))
        (void)WarnSortDeletesDividers(doc);
    UpdateStrips(doc, rows);
}

// ---- Conforming -------------------------------------------------------------

void ConformList::reset(const ScheduleDocument &doc)
{
    m_scenes.clear();
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i].isScene())
            m_scenes.append(doc.strips[i]);
    }
    m_used = QList<bool>(m_scenes.size(), false);
    m_entries = {ConformEntry()};
}

bool ConformList::enter(Prompter &prompter, const QString &text)
{
    if (m_entries.isEmpty() || !m_entries.constLast().isEmpty()) {
        if (m_entries.size() >= MaxStrips) {
            prompter.error(StripTable::fullMessage());
            return false;
        }
        m_entries.append(ConformEntry());
    }
    // A refused entry leaves the new line empty; the next entry fills it.
    ConformEntry &line = m_entries.last();
    const QChar first = text.isEmpty() ? QChar() : text.at(0);
    if (first == u'+') {
        line = {QStringLiteral("D"), QStringLiteral("--- Divider ---"), -1};
        return true;
    }
    if (first == u'*') {
        line = {QStringLiteral("B"), text.mid(1, 99), -1};
        return true;
    }
    if (first == u'-') {
        line = {QStringLiteral("R"), QStringLiteral("--- Rest Day --- "), -1};
        return true;
    }

    int found = -1;
    if (!text.isEmpty()) {
        for (int s = 0; s < m_scenes.size(); ++s) {
            if (m_scenes.at(s)[StripField::StripId] == text) {
                found = s;
                break;
            }
        }
    }
    if (found < 0) {
        prompter.error(QStringLiteral("No strip was found with that number. Please try again."));
        return false;
    }
    if (m_used.at(found)) {
        prompter.error(QStringLiteral("That breakdown number has already been entered. The numbers need to be unique "
                                      "to each and every strip."));
        return false;
    }
    bool ok = false;
    const int number = legacy::StrToInt(text, &ok);
    const StripRecord &scene = m_scenes.at(found);
    line = {ok ? QString::number(number) : text,
            scene[StripField::Location] + QStringLiteral(", ") + scene[StripField::Synopsis], found};
    m_used[found] = true;
    return true;
}

void ConformList::remove(int line)
{
    if (line < 0 || line >= m_entries.size())
        return;
    const int scene = m_entries.at(line).scene;
    if (scene >= 0 && scene < m_used.size())
        m_used[scene] = false;
    if (m_entries.size() > 1)
        m_entries.removeAt(line);
    else
        m_entries[0] = ConformEntry();
}

bool ConformList::apply(ScheduleDocument &doc) const
{
    // Asked whenever the counts differ, also when more lines than strips were entered.
    if (m_entries.size() != doc.strips.count() &&
        doc.prompter().question(MessageKind::Warning,
                                QStringLiteral("You have entered less strips than exist in the current schedule. Any "
                                               "strips you have not entered will be removed.\r\rAre you sure this is "
                                               "OK?"),
                                Buttons::YesNo) != Answer::Yes)
        return false;

    DocumentEdit edit(doc, QStringLiteral("conform strips"));
    doc.status().setBusy(true);
    doc.strips.clearRows(1, doc.strips.count());
    const int n = int(std::min<qsizetype>(m_entries.size(), MaxStrips));
    for (int r = 0; r < n; ++r) {
        const ConformEntry &entry = m_entries.at(r);
        StripRecord strip;
        if (entry.code == QLatin1String("B")) {
            strip = bannerStrip(entry.description, QStringLiteral("0"));
        } else if (entry.code == QLatin1String("D")) {
            strip.set(StripField::StripKind, StripKinds::DayDivider);
            strip.set(StripField::PageLength, QStringLiteral("0"));
        } else if (entry.code == QLatin1String("R")) {
            strip = bannerStrip(QStringLiteral("REST DAY"), QStringLiteral("1"));
        } else if (!entry.code.isEmpty() && entry.scene >= 0 && entry.scene < m_scenes.size()) {
            strip = m_scenes.at(entry.scene);
        }
        // An empty line leaves an empty strip, as it always has.
        doc.strips[r + 1] = strip;
    }
    doc.strips.setCount(n);
    doc.status().setBusy(false);
    return true;
}

// ---- Renumbering ------------------------------------------------------------

void RenumberBreakdownSheets(ScheduleDocument &doc)
{
    int n = 0;
    for (int i = 1; i <= doc.strips.count(); ++i) {
        if (doc.strips[i].isScene())
            doc.strips[i].set(StripField::StripId, QString::number(++n));
    }
    doc.values.NextStripId = n;
}

bool ResetBreakdownNumbering(ScheduleDocument &doc)
{
    if (!doc.prompter().confirm(QStringLiteral("Are you sure you wish to reset all breakdown sheet numbers to match "
                                               "the current strip order on the board?")))
        return false;
    // Sheet numbers feed no derived value; the edit marks the document modified all the same.
    DocumentEdit edit(doc, QStringLiteral("reset breakdown numbering"));
    RenumberBreakdownSheets(doc);
    return true;
}

} // namespace tb
