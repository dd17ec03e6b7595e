#include "scheduling/Calendar.h"

#include "document/DocumentOperations.h"
#include "document/LegacyText.h"
#include "document/ScheduleDocument.h"

namespace tb {

bool HasStartDate(const ScheduleDocument &doc)
{
    return StartDateSerial(doc) != 0.0;
}

QDate StartDate(const ScheduleDocument &doc)
{
    const double serial = StartDateSerial(doc);
    return serial != 0.0 ? legacy::SerialToDate(serial) : QDate();
}

bool ApplyStartDate(ScheduleDocument &doc, const std::optional<QDate> &date, const QDate &today)
{
    if (date) {
        if (!date->isValid())
            return false;
        if (*date < today) {
            const QString question =
                QStringLiteral("Errr? The date you have selected is before todays date! Have you discovered the secret "
                               "of time travel?\r\rAre you sure you want to use a start date of ") +
                legacy::FormatDate(*date, QString::fromLatin1(legacy::DayDatePattern)) + u'?';
            if (!doc.prompter().confirm(question))
                return false;
        }
        doc.values.StartDate = legacy::FloatToText(legacy::DateToSerial(*date));
    } else {
        if (doc.values.AutoRestDayRule.startsWith(u'D')) {
            const Answer answer = doc.prompter().question(
                MessageKind::Warning,
                QStringLiteral("You are removing the start date from the schedule, but you have previously set certain "
                               "days of the week as rest days. Without a start date Torvanbridge cannot calculate "
                               "these rest days, so they will be removed. Is this OK?\r\rClick Yes to continue "
                               "(removing the auto rest days) or No to cancel this operation."),
                Buttons::YesNo);
            if (answer != Answer::Yes)
                return false;
        }
        // A rule counted from the start day goes too, without a question: the start
        // date and its rest days are taken away together.
        doc.values.StartDate.clear();
        doc.values.AutoRestDayRule.clear();
    }
    SetModified(doc);
    return true;
}

RestDayChoice ReadRestDayRule(const ScheduleDocument &doc)
{
    const QString &rule = doc.values.AutoRestDayRule;
    RestDayChoice choice;
    if (rule.startsWith(u'D') && HasStartDate(doc))
        choice.basis = RestDayBasis::DayOfWeek;
    for (int k = 1; k <= 7; ++k)
        choice.ticked[k - 1] = rule.contains(QChar(u'0' + k));
    return choice;
}

QString RestDayRuleText(const RestDayChoice &choice)
{
    // A box hidden in the "from the start day" view still adds its digit when ticked;
    // "7" can never match a day number modulo 7, so it does no harm.
    QString rule = choice.basis == RestDayBasis::FromStartDay ? QStringLiteral("S") : QStringLiteral("D");
    for (int k = 1; k <= 7; ++k) {
        if (choice.ticked[k - 1])
            rule += QChar(u'0' + k);
    }
    return rule;
}

Result ApplyRestDayRule(ScheduleDocument &doc, const QString &rule)
{
    RestDayChoice choice;
    if (!rule.isEmpty()) {
        const QChar letter = rule.at(0);
        if (letter != u'S' && letter != u'D')
            return Result::failure(
                QStringLiteral("The rest day rule must start with S (from the start day) or D (day of the week)."));
        for (qsizetype i = 1; i < rule.size(); ++i) {
            const QChar digit = rule.at(i);
            if (digit < u'1' || digit > u'7')
                return Result::failure(
                    QStringLiteral("The rest day rule may hold only the digits 1 to 7 after its letter."));
            choice.ticked[digit.unicode() - u'1'] = true;
        }
        choice.basis = letter == u'D' ? RestDayBasis::DayOfWeek : RestDayBasis::FromStartDay;
        if (choice.basis == RestDayBasis::DayOfWeek && !HasStartDate(doc))
            return Result::failure(
                QStringLiteral("Rest days by day of the week need a start date. Set the start date first."));
    }
    doc.values.AutoRestDayRule = rule.isEmpty() ? QString() : RestDayRuleText(choice);
    SetModified(doc);
    return Result::success();
}

QString FirstProductionDayText(const ScheduleDocument &doc)
{
    const QDate start = StartDate(doc);
    if (!start.isValid())
        return QString();
    return QStringLiteral("First day of production is currently a ") +
           legacy::FormatDate(start, QString::fromLatin1(legacy::LongDayPattern)) + u'.';
}

} // namespace tb
