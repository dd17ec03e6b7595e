#include "SchedulingTestView.h"

#include "scheduling/Banners.h"

using namespace tb;
using namespace tb::test;

namespace {
const BannerColours Preference{"clYellow", "clNavy"};
} // namespace

class TestBanners : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates)); }
    void addAndInsert()
    {
        Fixture f;
        Build(f.doc, QStringList(9, "1"));
        QVERIFY(WriteBanner(f.doc, BannerAddAtEnd, {"Company move", {"clRed", "$00C0FFEE"}, 2}).ok());
        const StripRecord &row = f.doc.strips[10];
        QCOMPARE(row[StripField::Synopsis], "Company move");
        QCOMPARE(row[StripField::StripColour], "clRed,$00C0FFEE");
        QCOMPARE(row[StripField::DayCount], "2");
        QVERIFY(HasBanners(f.doc));

        // Inserted on the first strip it goes before it.
        f.doc.SelStart = f.doc.SelEnd = 1;
        QVERIFY(CanInsertBanner(f.doc));
        QVERIFY(WriteBanner(f.doc, BannerInsert, {"Holiday", Preference, 1}).ok());
        QCOMPARE(Kinds(f.doc), "4 1 1 1 1 1 1 1 1 1 4");
        QCOMPARE(f.doc.strips[1][StripField::StripColour], "clYellow,clNavy");
        QCOMPARE(f.doc.strips[1][StripField::DayCount], "1");
    }
    void editClearsForeignFields()
    {
        Fixture f;
        AddScene(f.doc, "1", "1");
        const int row = AddBanner(f.doc, "Travel", 2);
        AddScene(f.doc, "2", "1");
        f.doc.strips[row].set(StripField::Location, "Quay");
        f.doc.strips[row].set(StripField::Notes, "keep me?");
        f.doc.strips[row].set(StripField::LockDate, "3/9/2026");
        f.doc.SelStart = f.doc.SelEnd = row;
        QVERIFY(FirstSelectedIsBanner(f.doc));

        QVERIFY(WriteBanner(f.doc, BannerEdit, {"Travel to Penzance", Preference, 0}).ok());
        QCOMPARE(Kinds(f.doc), "1 4 1");
        const StripRecord &banner = f.doc.strips[row];
        QCOMPARE(banner[StripField::Synopsis], "Travel to Penzance");
        QCOMPARE(banner[StripField::Location], "");
        QCOMPARE(banner[StripField::Notes], "");
        QCOMPARE(banner[StripField::LockDate], "");
        QCOMPARE(banner[StripField::DayCount], "0");
    }
    void needsASelection()
    {
        Fixture f;
        AddScene(f.doc, "1", "1");
        QVERIFY(!CanInsertBanner(f.doc));
        QVERIFY(!CanEditBanner(f.doc));
        QCOMPARE(f.prompter.texts(), (QStringList{"You need to select a strip before inserting a banner.",
                                                  "You need to select a banner before you can edit it."}));
        QCOMPARE(f.prompter.prompts.at(1).kind, MessageKind::Error);
        QVERIFY(!FirstSelectedIsBanner(f.doc));
        QVERIFY(!WriteBanner(f.doc, BannerEdit, {}).ok());
        QCOMPARE(Kinds(f.doc), "1");
    }
    void readForEditing_data()
    {
        Columns<QString, QString, QString, QString, int>("colours", "dayCount", "background", "text", "days");

        Row("pair", "clRed,clWhite", "3", "clRed", "clWhite", 3);
        Row("no comma: the preference", "clRed", "1", "clYellow", "clNavy", 1);
        Row("split at the first comma, 20 characters", "$00FF0000,123456789012345678901234", "", "$00FF0000",
            "12345678901234567890", 0);
        // The day count is compared as text with "0": blank, "0" and "-2" are no day
        // change; "00" sorts after "0" and is a day change, of at least one day.
        Row("zero", ",", "0", "", "", 0);
        Row("negative", "clRed,clWhite", "-2", "clRed", "clWhite", 0);
        Row("double zero", "clRed,clWhite", "00", "clRed", "clWhite", 1);
        Row("beyond the spin", "clRed,clWhite", "900", "clRed", "clWhite", 365);
    }
    void readForEditing()
    {
        auto [colours, dayCount, background, text, days] =
            Fetch<QString, QString, QString, QString, int>("colours", "dayCount", "background", "text", "days");
        Fixture f;
        const int row = AddBanner(f.doc, "Wrap party");
        f.doc.strips[row].set(StripField::StripColour, colours);
        f.doc.strips[row].set(StripField::DayCount, dayCount);
        const BannerContent content = ReadBanner(f.doc, row, Preference);
        QCOMPARE(content.text, "Wrap party");
        QCOMPARE(content.colours.background, background);
        QCOMPARE(content.colours.text, text);
        QCOMPARE(content.days, days);
    }
    void removeAll()
    {
        Fixture f;
        AddBanner(f.doc, "Travel", 1);
        Build(f.doc, {"1", "|", "B"});
        f.doc.SelStart = f.doc.SelEnd = 4;

        f.prompter.answers = {Answer::No};
        QVERIFY(!RemoveAllBanners(f.doc));
        QCOMPARE(Kinds(f.doc), "4 1 2 4");

        QVERIFY(RemoveAllBanners(f.doc));
        QCOMPARE(f.prompter.texts().last(), "Are you sure you wish to remove ALL banners from the schedule?");
        QCOMPARE(Kinds(f.doc), "1 2");
        QCOMPARE(f.doc.SelStart, 0);
        QVERIFY(!HasBanners(f.doc));
    }
    void convertRestDays_data()
    {
        Columns<QString, QString, Answer, QString, QString, QString>("start", "rule", "answer", "before", "after",
                                                                     "ruleAfter");

        Row("D67 from a Friday", FridayMarch6, "D67", Answer::Yes, "1 2 3 3 1 2", "1 2 4 4 1 2", "");
        Row("no rest days yet: the rule is cleared", "", "S6", Answer::Yes, "1 2 1 2", "1 2 1 2", "");
        Row("declined", "", "S1", Answer::No, "1 2 3 1 2", "1 2 3 1 2", "S1");
    }
    void convertRestDays()
    {
        auto [start, rule, answer] = Fetch<QString, QString, Answer>("start", "rule", "answer");
        Fixture f;
        f.doc.values.StartDate = start;
        f.doc.values.AutoRestDayRule = rule;
        Build(f.doc, {"1", "|", "1", "|"});
        QTEST(Kinds(f.doc), "before");
        f.prompter.answers = {answer};

        QCOMPARE(ConvertAutoRestDaysToBanners(f.doc, Preference), answer == Answer::Yes);
        QCOMPARE(
            f.prompter.texts(),
            QStringList{"This feature will convert all auto-rest days to normal 1 day banners, and remove all rest "
                        "day settings.\r\rWARNING: This operation cannot be un-done. Are you sure you wish to "
                        "proceed?"});
        QTEST(Kinds(f.doc), "after");
        QTEST(f.doc.values.AutoRestDayRule, "ruleAfter");
        if (start.isEmpty())
            return;
        const StripRecord &sunday = f.doc.strips[4];
        QCOMPARE(sunday[StripField::Synopsis], "REST DAY");
        QCOMPARE(sunday[StripField::DayCount], "1");
        QCOMPARE(sunday[StripField::StripColour], "clYellow,clNavy");
        // Each stays on its own day and date.
        QCOMPARE(sunday[StripField::DayNumber], "3");
        QCOMPARE(sunday[StripField::SceneNumber], "Sun, March 8, 2026");
    }
};

TB_TEST_GUILESS_MAIN(TestBanners)
#include "tst_banners.moc"
