#pragma once

#include "document/Result.h"

#include <QString>

namespace tb {

class ScheduleDocument;

// Banners: strips of kind "4" with a line of text and colours of their own, which may
// stand for a number of days (a travel day, a holiday, a company move).

// What the banner dialog does on OK, chosen by the caller before it opens the dialog.
enum BannerMode { BannerAddAtEnd = 1, BannerInsert = 2, BannerEdit = 3 };

// Background and text colour as colour names ("clWhite", or "$00BBGGRR").
struct BannerColours
{
    QString background = QStringLiteral("clWhite");
    QString text = QStringLiteral("clBlack");
};

struct BannerContent
{
    QString text;
    BannerColours colours;
    int days = 0; // the day change the banner stands for; 0 = none
};

inline constexpr int MinBannerDays = 1;
inline constexpr int MaxBannerDays = 365;

// Whether the board holds a banner (the counter RecalculateDays keeps);
// "Re&move all banners..." is enabled by it.
bool HasBanners(const ScheduleDocument &doc);
// Whether the first selected strip is a banner; "Edi&t banner..." is enabled by it.
bool FirstSelectedIsBanner(const ScheduleDocument &doc);
// Whether the board holds an automatic rest day; "Convert auto-rest days to banners..."
// is enabled by it.
bool HasAutoRestDays(const ScheduleDocument &doc);

// The checks of "In&sert banner..." and "Edi&t banner..." before the dialog opens:
// without a selected strip the user is told so and the result is false.
bool CanInsertBanner(ScheduleDocument &doc);
bool CanEditBanner(ScheduleDocument &doc);

// The banner at a row as the dialog shows it for editing. The colour field is split at
// its first comma (at most 20 characters of text colour); without a comma the
// fallback pair is used. A day count that compares as text at or below "0" means no
// day change.
BannerContent ReadBanner(const ScheduleDocument &doc, int row, const BannerColours &fallback);

// The dialog's OK: adds a banner at the end, inserts one before the first selected
// strip, or rewrites the first selected strip, which is cleared first so nothing of
// what it held survives. content.days of 0 or less means no day change.
Result WriteBanner(ScheduleDocument &doc, BannerMode mode, const BannerContent &content);

// "Re&move all banners...": asks first. Returns whether the banners were removed.
bool RemoveAllBanners(ScheduleDocument &doc);

// "Convert auto-rest days to banners...": asks first, then makes every automatic rest
// day an ordinary one-day banner "REST DAY" in the given colours and clears the rest
// day rule. Cannot be undone. Returns whether the conversion was made.
bool ConvertAutoRestDaysToBanners(ScheduleDocument &doc, const BannerColours &colours);

} // namespace tb
