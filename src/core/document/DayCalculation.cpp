#include "document/DayCalculation.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"

#include <QHash>
#include <QLocale>

#include <array>
#include <cmath>
#include <cstring>
#include <utility>

namespace tb {

namespace {

// Day numbers are written into two fields of almost every strip on every change.
// Shared number texts keep that pass free of allocations, and a field is written
// only when its text changes, so rows shared with the undo store stay shared.
const QString &numberText(int n)
{
    static const std::array<QString, 4096> cache = [] {
        std::array<QString, 4096> texts;
        for (int i = 0; i < int(texts.size()); ++i)
            texts[i] = QString::number(i);
        return texts;
    }();
    if (n >= 0 && n < int(cache.size()))
        return cache[n];
    thread_local QString scratch;
    scratch = QString::number(n);
    return scratch;
}

// The strip kinds as the single characters field 7 holds.
constexpr char16_t SceneKind = u'1';
constexpr char16_t DividerKind = u'2';
constexpr char16_t RestDayKind = u'3';
constexpr char16_t BannerKind = u'4';

// Texts written by this pass are usually the very same shared string as last time, so
// the storage is compared before the characters.
bool sameText(const QString &a, const QString &b)
{
    return a.size() == b.size() &&
           (a.constData() == b.constData() || std::memcmp(a.constData(), b.constData(), a.size() * sizeof(QChar)) == 0);
}

void setIfChanged(StripTable &strips, int i, StripField field, const QString &value)
{
    // Read through the const table: a write access would first check the table for
    // sharing, and most fields keep their text.
    const StripTable &rows = strips;
    if (!sameText(rows[i][field], value))
        strips[i].set(field, value);
}

} // namespace

QString DayDateText(double startSerial, int day)
{
    // Every divider and banner is dated on every change, almost always to the text it
    // already holds; formatting with the locale's names is the costly part, so the
    // texts are kept per date for the current locale.
    struct Cache
    {
        QLocale locale;
        QHash<qint64, QString> texts;
    };
    thread_local Cache cache;
    const QLocale locale;
    if (cache.locale != locale || cache.texts.size() > 4096) {
        cache.locale = locale;
        cache.texts.clear();
    }
    const double serial = startSerial + day - 1;
    const qint64 key = qint64(std::trunc(serial));
    auto it = cache.texts.constFind(key);
    if (it == cache.texts.cend())
        it = cache.texts.insert(
            key, legacy::FormatDate(legacy::SerialToDate(serial), QString::fromLatin1(legacy::DayDatePattern), locale));
    return *it;
}

void RemoveStripsOfKind(ScheduleDocument &doc, const QString &kind)
{
    StripTable &strips = doc.strips;
    const StripTable &view = strips;
    const int count = strips.count();
    int first = 1;
    while (first <= count && view[first].kind() != kind)
        ++first;
    if (first <= count) {
        int kept = first - 1;
        for (int i = first; i <= count; ++i) {
            if (view[i].kind() != kind)
                strips[++kept] = view[i];
        }
        strips.setCount(kept);
    }
    // The scroll bars follow the new count when the edit tells the views.
}

void RecalculateDays(ScheduleDocument &doc)
{
    StripTable &strips = doc.strips;
    const StripTable &rows = strips;

    doc.days.dividers = 0;
    doc.days.banners = 0;
    RemoveStripsOfKind(doc, StripKinds::AutoRestDay);

    const double start = StartDateSerial(doc);
    const bool hasStart = start != 0.0;
    const QString &rule = doc.values.AutoRestDayRule;
    const bool byWeekday = rule.startsWith(u'D');
    const bool byCycle = rule.startsWith(u'S');
    bool insertionFailed = false;

    int d = 0;
    int s = 0;
    float p = 0.0f; // page sums are kept in single precision, as the totals always were

    for (int i = 1; i <= strips.count(); ++i) {
        const QString &kindText = rows[i].kind();
        // The kind is one digit; anything else is a row of no known kind.
        const char16_t kind = kindText.size() == 1 ? kindText.front().unicode() : u'\0';
        if (kind == SceneKind) {
            p = float(double(p) + PageLengthOf(rows[i]));
            setIfChanged(strips, i, StripField::DayNumber, numberText(d));
            setIfChanged(strips, i, StripField::ShootDayNumber, numberText(s));
        } else if (kind == DividerKind) {
            ++doc.days.dividers;
            ++d;
            ++s;
            setIfChanged(strips, i, StripField::DayNumber, numberText(d));
            setIfChanged(strips, i, StripField::ShootDayNumber, numberText(s));
            setIfChanged(strips, i, StripField::PageLength, legacy::SingleToText(p));
            setIfChanged(strips, i, StripField::SceneNumber, hasStart ? DayDateText(start, d) : QString());
            p = 0.0f;
        } else if (kind == BannerKind) {
            ++doc.days.banners;
            // A banner of n days counts n production days but only one shooting-day
            // number; schedules have always been numbered this way.
            const int days = BannerDayCount(rows[i][StripField::DayCount]);
            if (days > 0) {
                ++s;
                d += days;
            }
            setIfChanged(strips, i, StripField::DayNumber, numberText(d));
            setIfChanged(strips, i, StripField::PageLength, numberText(0));
            setIfChanged(strips, i, StripField::ShootDayNumber, numberText(s));
            setIfChanged(strips, i, StripField::SceneNumber, hasStart ? DayDateText(start, d) : QString());
        }

        // Automatic rest days follow a divider or another rest day, never the last
        // strip of the board. "D" tests the weekday (1 Sunday .. 7 Saturday) of the day
        // just ended, so that the rest day itself falls on the weekday the user ticked
        // (1 Monday .. 7 Sunday); "S" tests the day number modulo 7.
        if ((byWeekday || byCycle) && i < strips.count() && (kind == DividerKind || kind == RestDayKind)) {
            const int digit = byWeekday ? legacy::DayOfWeek(legacy::SerialToDate(start + d - 1)) : d % 7;
            if (rule.contains(QChar(u'0' + digit))) {
                Result inserted = strips.insertRows(i + 1, 1);
                if (inserted) {
                    ++d;
                    StripRecord &rest = strips[i + 1];
                    rest.set(StripField::StripKind, StripKinds::AutoRestDay);
                    rest.set(StripField::DayNumber, numberText(d));
                    rest.set(StripField::ShootDayNumber, numberText(s));
                    // The weekday rule always dates its rest days; the cycle rule only
                    // when there is a start date to count from.
                    if (byWeekday || hasStart)
                        rest.set(StripField::SceneNumber, DayDateText(start, d));
                } else if (!insertionFailed) {
                    // Shown once per pass: a full board would otherwise raise it at
                    // every divider.
                    insertionFailed = true;
                    doc.prompter().error((byWeekday ? QStringLiteral("Error inserting day of week divider!")
                                                    : QStringLiteral("Error inserting rest day divider!")) +
                                         QStringLiteral("\r\rThe schedule can hold at most %1 strips; the rest "
                                                        "days that do not fit are left out.")
                                             .arg(MaxStrips));
                }
            }
        }
    }

    doc.days.productionDays = d;
    doc.days.shootingDays = s;
    doc.status().setPanelText(StatusSink::DaysPanel,
                              d > 0 ? QStringLiteral(" Production: %1 days.  Shoot: %2 days").arg(d).arg(s)
                                    : QString());
    // The scroll bars follow the count when the edit tells the views.
}

QString SelectedPagesText(const ScheduleDocument &doc)
{
    float pages = 0.0f;
    if (doc.SelStart > 0) {
        int first = doc.SelStart;
        int last = doc.SelEnd > 0 ? doc.SelEnd : doc.SelStart;
        if (first > last)
            std::swap(first, last);
        last = qMin(last, doc.strips.count());
        for (int i = first; i <= last; ++i) {
            if (doc.strips[i].isScene())
                pages = float(double(pages) + PageLengthOf(doc.strips[i]));
        }
    }
    return pages != 0.0f ? FormatPageLength(pages) + QStringLiteral(" pages") : QString();
}

int BannerDayCount(const QString &dayCount)
{
    return qBound(0, legacy::StrToIntDef(dayCount, 0), MaxBannerDayCount);
}

} // namespace tb
