#include "Quillon/Support/LogStoreFixture.h"

#include <gtest/gtest.h>

#include <string>

namespace quillon {
namespace {

class OtherFormats : public testing::LogStoreTest {
  protected:
    void openText(const char* name, std::string_view text) {
        store.open(folder.write(QString::fromUtf8(name), text));
    }
    std::string saved(const QString& path) const { return folder.read(path); }
};

TEST_F(OtherFormats, AreReadByTheirContentWhateverTheirName) {
    openText("a.adi", "START-OF-LOG: 3.0\nQSO: 14074 CW 2024-01-15 1234 DL1ABC 599 1 K1XYZ 599 2\n");
    EXPECT_EQ(shown(), "K1XYZ");
    openText("d.cbr", "<CALL:5>HB9AB<EOR>");
    EXPECT_EQ(shown(), "HB9AB");
}

TEST_F(OtherFormats, AreSavedByTheExtensionAlone) {
    openText("contest.cbr", "START-OF-LOG: 3.0\nQSO: 14074 CW 2024-01-15 1234 DL1ABC 599 1 K1XYZ 599 2\n");
    store.save();
    EXPECT_NE(saved("contest.cbr").find("<CALL:5>K1XYZ"), std::string::npos)
        << "ADI text, under its old name";

    settings.setValue("writeHeaderOnSave", false);
    panels.answers = {folder.path("x.ADX"), folder.path("x.xml")};
    store.saveWithPanel();
    EXPECT_TRUE(saved("x.ADX").starts_with("<?xml")) << saved("x.ADX");
    EXPECT_EQ(saved("x.ADX").find("HEADER"), std::string::npos);
    store.saveWithPanel();
    EXPECT_TRUE(saved("x.xml").starts_with("<FREQ")) << saved("x.xml");
}

TEST_F(OtherFormats, SavingAsADXMakesThatTheFileOfTheLog) {
    openLog({"CALL=DL1ABC"});
    type(0, "CALL", "DL2ABC");
    panels.answers = {folder.path("neu.adx")};
    store.saveAsADX();
    EXPECT_EQ(panels.proposedNames.last(), "log.adx");
    EXPECT_EQ(title(), "neu.adx");
    EXPECT_NE(saved("neu.adx").find("<CALL>DL2ABC</CALL>"), std::string::npos);
    store.newLog();
    store.saveAsADX();
    EXPECT_EQ(panels.proposedNames.last(), "Logbuch.adx");
    EXPECT_EQ(error(), "(none)") << "to cancel is no failure";
}

TEST_F(OtherFormats, TakeTheirExtensionFromBehindAName) {
    settings.setValue("writeHeaderOnSave", false);
    struct Case {
        const char* name;
        const char* start;
        const char* proposed;
    };
    for (const Case& c : {Case{"a.b.adx", "<?xml", "a.b.edi"}, Case{".adx", "<CALL", ".adx.edi"},
                          Case{"Mr. Smith", "<CALL", "Mr. Smith.edi"}}) {
        openLog({"CALL=DL1ABC"});
        panels.answers = {folder.path(QString::fromUtf8(c.name))};
        store.saveWithPanel();
        EXPECT_TRUE(saved(QString::fromUtf8(c.name)).starts_with(c.start)) << c.name;
        store.exportEDI({});
        EXPECT_EQ(panels.proposedNames.last(), c.proposed);
    }
}

TEST_F(OtherFormats, ExportsLeaveTheLogAndItsFileAlone) {
    openLog({"CALL=DL1ABC QSO_DATE=20240115 TIME_ON=123456 GRIDSQUARE=JO62"});
    type(0, "CALL", "K1XYZ");
    told.sent();
    panels.answers = {folder.path("a.cbr"), folder.path("a.edi")};
    tallyrig::CabrilloHeader cabrillo;
    cabrillo.version = "3.0";
    store.exportCabrillo(cabrillo);
    EXPECT_EQ(panels.proposedNames.last(), "log.cbr");
    EXPECT_TRUE(saved("a.cbr").starts_with("START-OF-LOG: 3.0\r\n"));
    EXPECT_NE(saved("a.cbr").find("K1XYZ"), std::string::npos);
    store.exportEDI({});
    EXPECT_EQ(panels.proposedNames.last(), "log.edi");
    EXPECT_NE(saved("a.edi").find("240115;1234;K1XYZ;"), std::string::npos);
    EXPECT_EQ(title(), "log.adi — bearbeitet");
    EXPECT_EQ(told.sent(), "exported2");
}

TEST_F(OtherFormats, AFailedExportSaysSo) {
    openLog({"CALL=DL1ABC"});
    panels.answers = {folder.path("fehlt/a.cbr"), folder.path("fehlt/a.edi")};
    store.exportCabrillo({});
    EXPECT_TRUE(error().starts_with("Cabrillo-Export fehlgeschlagen:\n")) << error();
    store.exportEDI({});
    EXPECT_TRUE(error().starts_with("EDI-Export fehlgeschlagen:\n")) << error();
}

}  // namespace
}  // namespace quillon
