#include "TestSupport.h"

#include "reports/AlReport.h"
#include "reports/DfmParser.h"
#include "reports/TemplateFields.h"

#include <QBuffer>
#include <QtEndian>

using namespace tb;
using namespace tb::test;

class TestDfmParser : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void valuesOfEveryKind()
    {
        const QString text = QStringLiteral("object F: TForm\n  Int = -42\n  Hex = $FF00000F\n  Num = 1.5E2\n"
                                            "  Single = 2.5s\n  Str = 'It''s'#13#10'two' +\n    ' lines'#$41\n"
                                            "  Ident = alr_Detail\n  Font.Style = [fsBold, fsItalic]\n  Empty = []\n"
                                            "  Lines.Strings = (\n    'a'\n    'b')\n  Data = {\n    0A0B\n    ff}\n"
                                            "  Items = <\n    item\n      Width = 3\n    end>\n  object A: tAlBand\n"
                                            "    object L: TAlLabel\n    end\n  end\n  inherited B: tAlBand\n  end\n"
                                            "  object TAlReport\n  end\nend");
        ResultOf<DfmObject> parsed = ParseDfmText(text, QStringLiteral("t.dfm"));
        QVERIFY2(parsed.ok(), qPrintable(parsed.message()));
        const DfmObject &f = parsed.value();
        QCOMPARE(f.name, QStringLiteral("F"));
        QCOMPARE(f.className, QStringLiteral("TForm"));
        QCOMPARE(f.properties.size(), 11);
        auto value = [&](int i) { return f.properties.at(i).second; };
        QCOMPARE(value(0).integer, -42);
        QCOMPARE(value(1).integer, qint64(qint32(0xFF00000F))); // 32-bit colour values read signed
        QCOMPARE(value(2).number, 150.0);
        QCOMPARE(value(3).kind, DfmValue::Float);
        QCOMPARE(value(4).text, QStringLiteral("It's\r\ntwo linesA"));
        QCOMPARE(value(4).line, 6);
        QCOMPARE(value(5).kind, DfmValue::Identifier);
        QCOMPARE(f.properties.at(6).first, QStringLiteral("Font.Style"));
        QCOMPARE(value(6).setItems, QStringList({"fsBold", "fsItalic"}));
        QVERIFY(value(7).setItems.isEmpty());
        QCOMPARE(value(8).items.size(), 2);
        QCOMPARE(value(9).bytes, QByteArray("\x0A\x0B\xFF"));
        QCOMPARE(value(10).collection.size(), 1);
        QCOMPARE(value(10).collection.first().properties.first().second.integer, 3);
        // Objects nest in file order.
        QCOMPARE(f.children.size(), 3);
        QCOMPARE(f.children.at(0).children.at(0).name, QStringLiteral("L"));
        QCOMPARE(f.children.at(0).children.at(0).line, 22);
        QCOMPARE(f.children.at(1).keyword, QStringLiteral("inherited"));
        QVERIFY(f.children.at(2).name.isEmpty());
        QCOMPARE(f.children.at(2).className, QStringLiteral("TAlReport"));
    }

    void errors_data()
    {
        Columns<QString, QString>("text", "message");
        Row("no object", "Left = 1\n", "t.dfm, line 1: expected \"object\", found \"Left\"");
        Row("missing class", "object F:\nend", "t.dfm, line 2: expected a class name after \"F:\", found \"end\"");
        Row("missing equals", "object F: TForm\n  Left 1\nend",
            "t.dfm, line 2: expected \"=\" after the property name \"Left\", found the number 1");
        Row("missing value", "object F: TForm\n  Left =\nend",
            "t.dfm, line 3: expected a value for \"Left\", found \"end\"");
        Row("missing end", "object F: TForm\n  Left = 1\n",
            "t.dfm, line 3: expected a property, \"object\" or \"end\" in F, found the end of the file");
        Row("open string", "object F: TForm\n  Caption = 'abc\nend",
            "t.dfm, line 2: expected \"'\" to close the string before the end of the line");
        Row("plus without string", "object F: TForm\n  Caption = 'a' +\n  1\nend",
            "t.dfm, line 3: expected a string after \"+\", found the number 1");
        Row("bad set", "object F: TForm\n  Font.Style = [fsBold fsItalic]\nend",
            "t.dfm, line 2: expected \",\" or \"]\" in the set of \"Font.Style\", found \"fsItalic\"");
        Row("odd hex", "object F: TForm\n  Data = {ABC}\nend",
            "t.dfm, line 2: binary data has an odd number of hexadecimal digits");
        Row("bad hex", "object F: TForm\n  Data = {AG}\nend",
            "t.dfm, line 2: expected a hexadecimal digit in the binary data, found \"G\"");
        Row("bad character", "object F: TForm\n  Left = 1\n  ; \nend", "t.dfm, line 3: unexpected character \";\"");
        Row("number glued to name", "object F: TForm\n  Left = 12px\nend",
            "t.dfm, line 2: expected a blank or a symbol after the number, found \"p\"");
        Row("text after end", "object F: TForm\nend\nobject G: TForm\nend",
            "t.dfm, line 3: expected the end of the file after the last \"end\", found \"object\"");
        Row("unclosed list", "object F: TForm\n  L = ('a'\n",
            "t.dfm, line 3: expected \")\" to close the list of \"L\", found the end of the file");
        Row("collection", "object F: TForm\n  C = < Width = 1 >\nend",
            "t.dfm, line 2: expected \"item\" or \">\" in the collection \"C\", found \"Width\"");

        // Parsed, but no template: the message of building the form.
        const auto form = [](const char *body) -> QString {
            return "object F: TForm\n" + QString::fromUtf8(body) + "end\n";
        };
        Row("unknown class", form("  object X: TLabel\n  end\n"),
            "t.dfm, line 2: expected a report class (TAlReport, tAlBand, TAlLabel, TAlField, "
            "TAlSysField, TAlShape, tAlImage, TAlDetailLink), found \"TLabel\"");
        Row("unknown property", form("  object B: tAlBand\n    Colour = clRed\n  end\n"),
            "t.dfm, line 3: unknown property \"Colour\" of tAlBand");
        Row("wrong kind", form("  object B: tAlBand\n    Height = 'tall'\n  end\n"),
            "t.dfm, line 3: expected a whole number for \"Height\", found a quoted string");
        Row("bad enumeration", form("  object B: tAlBand\n    BandType = alr_Body\n  end\n"),
            "t.dfm, line 3: expected one of alr_Title, alr_PageHeader, alr_DetailHeader, "
            "alr_Detail, alr_DetailFooter, alr_PageFooter, alr_ReportFooter, alr_NewPage, "
            "alr_GroupHeader, alr_GroupFooter for \"BandType\", found \"alr_Body\"");
        Row("bad boolean", form("  object B: tAlBand\n    Enabled = Yes\n  end\n"),
            "t.dfm, line 3: expected True or False for \"Enabled\"");
        Row("bad colour", form("  object B: tAlBand\n    Color = clPurpleish\n  end\n"),
            "t.dfm, line 3: \"clPurpleish\" is not a colour name (for \"Color\")");
        Row("bad font style", form("  object B: tAlBand\n    Font.Style = [fsHeavy]\n  end\n"),
            "t.dfm, line 3: expected fsBold, fsItalic, fsUnderline or fsStrikeOut in "
            "\"Font.Style\", found \"fsHeavy\"");
        Row("caption on a system field",
            form("  object B: tAlBand\n    object S: TAlSysField\n      Caption = 'x'\n    end\n  end\n"),
            "t.dfm, line 4: unknown property \"Caption\" of TAlSysField");
        Row("missing reference", form("  object K: TAlDetailLink\n    GroupBand = Nowhere\n  end\n"),
            "t.dfm, line 3: \"GroupBand\" of K names \"Nowhere\", which the template does "
            "not hold");
        Row("reference of the wrong class",
            form("  object B: tAlBand\n  end\n  object K: TAlDetailLink\n    DataSource = B\n  end\n"),
            "t.dfm, line 5: expected a TAlField for \"DataSource\", found tAlBand \"B\"");
        Row("band on a band", form("  object B: tAlBand\n    object C: tAlBand\n    end\n  end\n"),
            "t.dfm, line 3: a band cannot sit on another band (C on B)");
        Row("children of a label", form("  object L: TAlLabel\n    object M: TAlLabel\n    end\n  end\n"),
            "t.dfm, line 3: L cannot hold other components");
    }

    void errors()
    {
        auto [text, message] = Fetch<QString, QString>("text", "message");
        ResultOf<DfmObject> parsed = ParseDfmText(text, QStringLiteral("t.dfm"));
        if (parsed.ok()) {
            auto built = BuildReportForm(parsed.value(), QStringLiteral("/somewhere/t.dfm"));
            QVERIFY(!built.ok());
            QCOMPARE(built.message(), message);
        } else {
            QCOMPARE(parsed.message(), message);
        }
    }

    void fontsFollowTheirParentAndPicturesLoad()
    {
        QImage image(4, 3, QImage::Format_RGB32);
        image.fill(Qt::red);
        QByteArray png;
        QBuffer buffer(&png);
        buffer.open(QIODevice::WriteOnly);
        image.save(&buffer, "PNG");
        // Picture data: class name with its length byte, the stream's byte count, the stream.
        QByteArray size(4, 0);
        qToLittleEndian(quint32(png.size()), size.data());
        const QByteArray data = QByteArray(1, char(9)) + "TPngImage" + size + png;
        ResultOf<DfmObject> parsed = ParseDfmText(
            QStringLiteral("object F: TForm\n  Font.Name = 'Courier New'\n  Font.Height = -13\n  object B: tAlBand\n"
                           "    Font.Style = [fsItalic]\n    object L1: TAlLabel\n    end\n"
                           "    object L2: TAlLabel\n      Font.Height = -20\n    end\n    object L3: TAlLabel\n"
                           "      Font.Height = -20\n      ParentFont = True\n    end\n"
                           "    object I: tAlImage\n      Picture.Data = {%1}\n    end\n  end\nend\n")
                .arg(QString::fromLatin1(data.toHex())),
            QStringLiteral("t.dfm"));
        QVERIFY(parsed.ok());
        auto built = BuildReportForm(parsed.value(), QStringLiteral("t.dfm"));
        QVERIFY2(built.ok(), qPrintable(built.message()));
        const ReportForm &form = *built.value();
        auto label = [&](const char *name) { return static_cast<TAlLabel *>(form.find(QString::fromLatin1(name))); };
        QCOMPARE(label("L1")->Font.name, QStringLiteral("Courier New"));
        QVERIFY(label("L1")->Font.italic);
        QVERIFY(label("L1")->ParentFont);
        // A font property turns ParentFont off; the rest of the font still comes from the band.
        QCOMPARE(label("L2")->Font.height, -20);
        QVERIFY(label("L2")->Font.italic);
        QVERIFY(!label("L2")->ParentFont);
        QCOMPARE(label("L3")->Font.height, -13);
        // Output fonts are in dots of the layout resolution: 13 design pixels at 96 ppi.
        QCOMPARE(label("L1")->outputFont.pixelSize(), qRound(13 * 1200 / 96.0));
        QCOMPARE(static_cast<tAlImage *>(form.find(QStringLiteral("I")))->Picture.size(), QSize(4, 3));
    }

    void loadTemplateReportsWhyNot_data()
    {
        // content: none: no file at all
        Columns<QByteArray, QString>("content", "why");
        Row("missing", QByteArray(), "%1: no such template file");
        Row("no report", QByteArray("object F: TForm\r\n  object B: tAlBand\r\n  end\r\nend\r\n"),
            "t.dfm: the template holds no TAlReport");
        Row("bad value", QByteArray("object F: TForm\n  object R: TAlReport\n    Papersize = A4\n  end\nend\n"),
            "t.dfm, line 3: expected one of alr_A4, alr_A5, alr_Legal, alr_Letter for "
            "\"Papersize\", found \"A4\"");
        // A binary form file of the older edition is named as such.
        Row("binary", QByteArray("TPF0\x06TForm1\x05Form1"),
            "t.dfm, line 1: expected a template in text form, found a binary form file");
    }

    void loadTemplateReportsWhyNot()
    {
        auto [content, why] = Fetch<QByteArray, QString>("content", "why");
        const QString path = TempPath(QString::fromLatin1(QTest::currentDataTag()) + "/t.dfm");
        QVERIFY(content.isNull() || WriteBytes(path, content));
        QStringList trace;
        auto loaded = LoadTemplate(path, [&](const QString &line) { trace.append(line); });
        QVERIFY(!loaded.ok());
        why.replace(QStringLiteral("%1"), path);
        QCOMPARE(loaded.message(), why);
        QCOMPARE(trace, QStringList{why}); // the detail goes to the trace
    }

    // A Formname system field shows the template's file name, without its folder.
    void formNameFieldsGetTheFileName()
    {
        const QString path = TempPath("forms/Day 1 sheet.dfm");
        QVERIFY(WriteBytes(path, "object F: TForm\n  object R: TAlReport\n  end\n  object B: tAlBand\n"
                                 "    object S: TAlSysField\n      DataType = alr_Formname\n    end\n  end\nend\n"));
        auto loaded = LoadTemplate(path);
        QVERIFY2(loaded.ok(), qPrintable(loaded.message()));
        QCOMPARE(static_cast<TAlSysField *>(loaded.value()->find(QStringLiteral("S")))->formName, "Day 1 sheet.dfm");
    }

    void shippedTemplatesLoad_data()
    {
        // lacking: the fields its report fills that the template leaves out
        // holds: fields the template must hold besides
        Columns<QString, QString, QString>("file", "lacking", "holds");
        Row("shooting schedule", "ShootSch1.dfm",
            "CastField SceneNoField IntExtField SetLocField DNField LengthField ScriptPageField CastIdsField", "");
        Row("one-line", "Oneline1.dfm",
            "PageField CatagoryField1 CatagoryField2 CatagoryField3 SetNameField NotesField", "");
        Row("breakdown", "Breakdown1.dfm", "", "");
        Row("element summary", "ElementSummary1.dfm", "PictureField AddressField", "");
        Row("call sheet", "CallSheet1.dfm", "",
            "PictureField AddressField CompanyField DateField DirField ProdField ADField UPMField UnitField "
            "MakeupField "
            "CostumeField WeatherField WrapField SceneField LocationField PagesField DNField IEField SetField "
            "SynopsisField ACharacterField ANameField AMakeupField ACostumeField AOnsetField ATransportField "
            "ExtraField "
            "ExtraCallField OtherField OtherDescriptionField CrewField1 CrewCallField1 CrewField2 CrewCallField2 "
            "NotesField");
    }

    void shippedTemplatesLoad()
    {
        auto [file, lacking, holds] = Fetch<QString, QString, QString>("file", "lacking", "holds");
        auto loaded = LoadTemplate(QStringLiteral(TB_SOURCE_DIR) + "/templates/" + file);
        QVERIFY2(loaded.ok(), qPrintable(loaded.message()));
        const ReportForm &form = *loaded.value();
        QVERIFY(form.report);
        QStringList names;
        for (const TAlField *field : form.fields())
            names.append(field->Name);
        // Every field name appears once: only the first of a name would receive values.
        QCOMPARE(names.removeDuplicates(), 0);
        for (const QString &field : holds.split(u' ', Qt::SkipEmptyParts))
            QVERIFY2(names.contains(field), qPrintable(field));
        if (const std::optional<TemplateReport> report = TemplateReportOf(file)) {
            const TemplateFieldCheck check = CheckTemplateFields(form, *report);
            QCOMPARE(check.lacking.join(u' '), lacking);
            QVERIFY2(check.unfilled.isEmpty(), qPrintable(check.unfilled.join(u' ')));
        }
    }
};

TB_TEST_MAIN(TestDfmParser)
#include "tst_dfmparser.moc"
