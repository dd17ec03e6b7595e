#pragma once

#include "document/ScheduleDocument.h"

namespace tb::bench {

// Fills the document to capacity: 1000 strips (scenes with a divider every six
// strips, a few banners), 500 elements, a full crew list, a start date and the
// rest day rule "D67" (which makes RecalculateDays insert rest days until full).
void FillToCapacity(ScheduleDocument &doc, bool restDays = false);

} // namespace tb::bench
