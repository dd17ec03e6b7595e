#include "TestSupport.h"

#include "breakdown/ProductionDetails.h"

#include <QImage>

using namespace tb;
using namespace tb::test;

class TestProductionDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        ScheduleDocument doc;
        RecordingView view{doc};
        NewDocument(doc);
        ProductionDetails d = ReadProductionDetails(doc);
        QCOMPARE(QStringList({d.unitCall, d.costumeCall, d.makeupCall, d.wrapTime}),
                 QStringList({"8:00 am", "7:45 am", "7:00 am", "6:00 pm"}));
        QVERIFY(d.address.isEmpty());

        d.title = "Rain";
        d.address = {"1 Quay \"Street\"", "Port Ellen, Islay", "PA42 7AA"};
        d.script = "Pink, 3 May";
        d.unitCall = "7:00 am";
        d.logoFile = "/nowhere/logo.png";
        d.crew[0] = {"Gaffer", "Lo", "555"};
        d.crew[49] = {"Grip", "", "x"};
        WriteProductionDetails(doc, d);
        QCOMPARE(doc.values.CompanyAddress, "\"1 Quay \"\"Street\"\"\",\"Port Ellen, Islay\",\"PA42 7AA\"");
        QCOMPARE(doc.values.ScriptTitle, "Pink, 3 May");
        QCOMPARE(doc.values.LogoFile, "/nowhere/logo.png");
        QCOMPARE(doc.crew[1][CrewField::Position], "Gaffer");
        QCOMPARE(doc.crew[50][CrewField::Contact], "x");
        QCOMPARE(ReadProductionDetails(doc).unitCall, "7:00 am");
        QCOMPARE(view.title, "Torvanbridge - Rain  () ");

        // Read back: the address lines split as they were joined.
        QCOMPARE(ReadProductionDetails(doc).address, d.address);

        // Blank crew lines overwrite what was there.
        d.crew[0] = {};
        WriteProductionDetails(doc, d);
        QVERIFY(doc.crew[1].isBlank());
    }

    void logo_data()
    {
        // message: blank: loaded
        Columns<QString, int, QString>("file", "source", "message");
        Row("JPEG", "logo.jpg", int(LogoSource::Chosen), "");
        Row("PNG", "logo.png", int(LogoSource::Stored), "");
        Row("bitmap", "logo.bmp", int(LogoSource::Chosen), "");
        Row("broken link", "moved.png", int(LogoSource::Stored),
            "Error opening logo image file. The link to the file might have been broken - try "
            "re-loading it.");
        Row("not a picture", "text.jpg", int(LogoSource::Chosen),
            "Error opening logo image file. Make sure this is a valid graphic file.");
    }

    void logo()
    {
        auto [file, source, message] = Fetch<QString, int, QString>("file", "source", "message");
        const QString path = TempPath(file);
        if (file.startsWith("logo")) {
            QImage image(40, 20, QImage::Format_RGB32);
            image.fill(Qt::darkCyan);
            QVERIFY(image.save(path));
        } else if (file.startsWith("text")) {
            QVERIFY(WriteBytes(path, "this is text, not a picture"));
        }
        ScheduleDocument doc;
        ScriptedPrompter prompter{doc};
        const QImage loaded = LoadLogo(doc, path, LogoSource(source));
        if (message.isEmpty()) {
            QCOMPARE(loaded.size(), QSize(40, 20));
            QVERIFY(prompter.prompts.isEmpty());
        } else {
            QVERIFY(loaded.isNull());
            QCOMPARE(prompter.texts(), QStringList{message});
            QCOMPARE(prompter.prompts[0].kind, MessageKind::Error);
        }
        QVERIFY(LogoFileFilter().contains("*.jpg"));
    }
};

TB_TEST_MAIN(TestProductionDetails)
#include "tst_productiondetails.moc"
