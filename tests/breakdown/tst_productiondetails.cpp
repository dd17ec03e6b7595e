#include "TestSupport.h"

#include "breakdown/ProductionDetails.h"
#include "document/DocumentOperations.h"
#include "document/ScheduleFile.h"

#include <QFile>
#include <QImage>
#include <QTest>

using namespace tb;
using namespace tb::test;

class TestProductionDetails : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newDocumentDefaults();
    void roundTrip();
    void addressSurvivesTheFile();
    void logo_data();
    void logo();
    void brokenLink();
    void invalidChosenFile();
};

void TestProductionDetails::newDocumentDefaults()
{
    ScheduleDocument doc;
    NewDocument(doc);
    const ProductionDetails d = ReadProductionDetails(doc);
    QCOMPARE(d.unitCall, "8:00 am");
    QCOMPARE(d.costumeCall, "7:45 am");
    QCOMPARE(d.makeupCall, "7:00 am");
    QCOMPARE(d.wrapTime, "6:00 pm");
    QCOMPARE(d.crew.size(), CrewRowCount);
    QVERIFY(d.address.isEmpty());
}

void TestProductionDetails::roundTrip()
{
    ScheduleDocument doc;
    RecordingView view;
    doc.setView(&view);
    ProductionDetails d = ReadProductionDetails(doc);
    d.title = "Rain";
    d.company = "Brenholt";
    d.address = {"1 Quay Street", "Port Ellen, Islay", "PA42 7AA"};
    d.producer = "P";
    d.director = "D";
    d.firstAD = "AD";
    d.productionManager = "PM";
    d.script = "Pink, 3 May";
    d.reference = "R-1";
    d.preparedBy = "Me";
    d.unitCall = "7:00 am";
    d.logoFile = "/nowhere/logo.png";
    d.crew[0] = {"Gaffer", "Lo", "555"};
    d.crew[49] = {"Grip", "", "x"};
    WriteProductionDetails(doc, d);

    QCOMPARE(doc.values.PictureTitle, "Rain");
    QCOMPARE(doc.values.CompanyAddress, "\"1 Quay Street\",\"Port Ellen, Islay\",\"PA42 7AA\"");
    QCOMPARE(doc.values.ScriptTitle, "Pink, 3 May");
    QCOMPARE(doc.values.LogoFile, "/nowhere/logo.png");
    QCOMPARE(doc.crew[1][CrewField::Position], "Gaffer");
    QCOMPARE(doc.crew[50][CrewField::Contact], "x");
    QCOMPARE(doc.crew[2][CrewField::Name], "");
    QCOMPARE(view.title, "Torvanbridge - Rain  () ");
    QVERIFY(doc.Modified);

    const ProductionDetails back = ReadProductionDetails(doc);
    QCOMPARE(back.address, d.address);
    QCOMPARE(back.crew, d.crew);
    QCOMPARE(back.unitCall, "7:00 am");

    // Blank crew lines overwrite what was there.
    d.crew[0] = {};
    WriteProductionDetails(doc, d);
    QVERIFY(doc.crew[1].isBlank());
}

void TestProductionDetails::addressSurvivesTheFile()
{
    ScheduleDocument doc;
    ProductionDetails d = ReadProductionDetails(doc);
    d.address = {"Line \"one\"", "two", "three, four"};
    WriteProductionDetails(doc, d);
    const QString path = TempPath("address.tbf");
    QVERIFY(SaveDocument(doc, path).ok());
    ScheduleDocument read;
    QVERIFY(OpenDocument(read, path).ok());
    QCOMPARE(ReadProductionDetails(read).address, d.address);
}

void TestProductionDetails::logo_data()
{
    QTest::addColumn<QString>("format");
    QTest::newRow("JPEG") << "jpg";
    QTest::newRow("PNG") << "png";
    QTest::newRow("bitmap") << "bmp";
}

void TestProductionDetails::logo()
{
    QFETCH(QString, format);
    QImage image(40, 20, QImage::Format_RGB32);
    image.fill(Qt::darkCyan);
    const QString path = TempPath("logo." + format);
    QVERIFY(image.save(path));
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    const QImage loaded = LoadLogo(doc, path, LogoSource::Chosen);
    QCOMPARE(loaded.size(), QSize(40, 20));
    QVERIFY(prompter.prompts.isEmpty());
    QVERIFY(LogoFileFilter().contains("*.jpg"));
}

void TestProductionDetails::brokenLink()
{
    const QString path = TempPath("moved-logo.png");
    QImage image(8, 8, QImage::Format_RGB32);
    image.fill(Qt::red);
    QVERIFY(image.save(path));
    QVERIFY(QFile::remove(path));
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    QVERIFY(LoadLogo(doc, path, LogoSource::Stored).isNull());
    QCOMPARE(prompter.texts(), QStringList{"Error opening logo image file. The link to the file might have been "
                                           "broken - try re-loading it."});
    QCOMPARE(prompter.prompts[0].kind, MessageKind::Error);
}

void TestProductionDetails::invalidChosenFile()
{
    const QString path = TempPath("not-a-picture.jpg");
    QFile f(path);
    QVERIFY(f.open(QIODevice::WriteOnly));
    f.write("this is text, not a picture");
    f.close();
    ScheduleDocument doc;
    ScriptedPrompter prompter;
    doc.setPrompter(&prompter);
    QVERIFY(LoadLogo(doc, path, LogoSource::Chosen).isNull());
    QCOMPARE(prompter.texts(), QStringList{"Error opening logo image file. Make sure this is a valid graphic file."});
}

QTEST_MAIN(TestProductionDetails)
#include "tst_productiondetails.moc"
