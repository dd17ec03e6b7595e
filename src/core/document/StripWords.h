#pragma once

#include <QString>

namespace tb {

// The words a scene's codes stand for wherever the program spells its setting out (the
// board's hints, the reports, the exported board): interior/exterior "I", "E", "I/E" as
// "INT", "EXT", "INT/EXT"; day/night "D", "N", "DWN", "DSK" as "DAY", "NIGHT", "DAWN",
// "DUSK". Any other code has no word: the result is empty.
QString IntExtWord(const QString &code);
QString DayNightWord(const QString &code);

// The same, but a code without a word is printed as it stands, as the reports and the
// exported board print it.
QString IntExtWordOrCode(const QString &code);
QString DayNightWordOrCode(const QString &code);

} // namespace tb
