#include "document/StripWords.h"

namespace tb {

QString IntExtWord(const QString &code)
{
    if (code == QLatin1String("I"))
        return QStringLiteral("INT");
    if (code == QLatin1String("E"))
        return QStringLiteral("EXT");
    if (code == QLatin1String("I/E"))
        return QStringLiteral("INT/EXT");
    return QString();
}

QString DayNightWord(const QString &code)
{
    if (code == QLatin1String("D"))
        return QStringLiteral("DAY");
    if (code == QLatin1String("N"))
        return QStringLiteral("NIGHT");
    if (code == QLatin1String("DWN"))
        return QStringLiteral("DAWN");
    if (code == QLatin1String("DSK"))
        return QStringLiteral("DUSK");
    return QString();
}

QString IntExtWordOrCode(const QString &code)
{
    const QString word = IntExtWord(code);
    return word.isEmpty() ? code : word;
}

QString DayNightWordOrCode(const QString &code)
{
    const QString word = DayNightWord(code);
    return word.isEmpty() ? code : word;
}

} // namespace tb
