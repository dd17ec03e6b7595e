#pragma once

#include <QString>

namespace tb {

class ScheduleDocument;

// Find strips: the scene strips whose scene number, location, set, synopsis or
// sequence holds the text, or that are assigned an element whose name holds it
// (without regard to letter case). Day dividers, rest days and banners are not
// searched.

// Whether the strip (row 1..count) is a scene strip that matches the text. An empty
// text matches nothing.
bool StripMatches(const ScheduleDocument &doc, int row, const QString &text);

// The next matching strip after row `from` (forward) or before it (backward), going
// round the end of the board; `from` itself is tried last, so a single match is found
// again. 0 when no strip matches. Pass 0 to start before the first strip going
// forward, or after the last going backward.
int FindStrip(const ScheduleDocument &doc, const QString &text, int from, bool forward);

// How many strips match.
int CountMatchingStrips(const ScheduleDocument &doc, const QString &text);

} // namespace tb
