// SPDX-License-Identifier: GPL-3.0-or-later
#include "Quillon/Support/LogStoreFixture.h"

#include <QFileInfo>

#include <string>

namespace quillon {
namespace {

using tallyrig::OutdoorProgram;
using tallyrig::SOTARole;
using Outdoors = testing::LogStoreTest;

const std::string contact = "CALL=DL1ABC QSO_DATE=20240501 TIME_ON=1200 BAND=20m MODE=CW OPERATOR=dl9x ";

TEST_F(Outdoors, AreCheckedAsTheProgramAsksWhateverTheUserSet) {
    for (const char* const key : {"checkRequired", "checkFormat", "checkDuplicates", "checkUnknownFields"}) {
        settings.setValue(key, std::string_view(key) == "checkDuplicates");
    }
    openLog({contact + "MY_SIG_INFO=K-1", contact + "MY_SIG=GMA FOO=x GRIDSQUARE=?", "OPERATOR=dl9x"});
    store.runOutdoorCheck();
    EXPECT_EQ(told.sent(), "checkResults showCheckResults");
    EXPECT_EQ(store.errorCount(), 6U);
    EXPECT_EQ(joined(store.recordIssueMessages(id(0))), "POTA: ungültige Referenz: K-1");
    EXPECT_EQ(store.recordIssueMessages(id(1)).size(), 2U);
    store.setOutdoorProgram(OutdoorProgram::sota);
    store.setSotaRole(SOTARole::chaser);
    EXPECT_EQ(told.sent(), "outdoorProgram sotaRole");
    store.runOutdoorCheck();
    EXPECT_EQ(store.errorCount(), 5U) << "a chaser needs no summit";
    store.setSotaRole(SOTARole::activator);
    store.runOutdoorCheck();
    EXPECT_EQ(store.errorCount(), 8U);
}

TEST_F(Outdoors, TellWhatALogWithoutReferencesLacks) {
    openLog({contact});
    const std::tuple<OutdoorProgram, SOTARole, std::string> cases[] = {
        {OutdoorProgram::gma, SOTARole::chaser,
         "Keine GMA-Referenzen im Log gefunden. Jedes QSO braucht eine gültige Referenz in MY_SIG_INFO "
         "(z. B. DA/AL-001)."},
        {OutdoorProgram::sota, SOTARole::activator,
         "Keine SOTA-QSOs für Activator gefunden. Setze je QSO MY_SOTA_REF (z. B. HB/BE-001)."},
        {OutdoorProgram::sota, SOTARole::chaser,
         "Keine SOTA-QSOs für Chaser gefunden. Setze je QSO SOTA_REF (z. B. HB/BE-001)."}};
    for (const auto& [program, role, message] : cases) {
        store.setOutdoorProgram(program);
        store.setSotaRole(role);
        store.exportOutdoor();
        EXPECT_EQ(error(), message);
    }
    EXPECT_TRUE(panels.messages.isEmpty());
}

TEST_F(Outdoors, AreExportedIntoTheChosenFolderAndShown) {
    settings.setValue("adifVersion", "3.0.0");
    openLog({contact + "MY_SIG_INFO=B/DL-1,B/DL-2", contact + "MY_SOTA_REF=DM/BW-001"});
    store.setOutdoorProgram(OutdoorProgram::bota);
    store.exportOutdoor();
    EXPECT_EQ(panels.messages.takeLast(), "Ordner für die BOTA-Dateien wählen.|Hierhin exportieren");
    EXPECT_EQ(told.sent() + folder.names(), "outdoorProgramlog.adi") << "cancelled";
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(told.sent(), "outdoorExported");
    EXPECT_EQ(folder.names(), "DL9X@B-DL-1 20240501.adi DL9X@B-DL-2 20240501.adi log.adi");
    EXPECT_EQ(fileManager.shown, (QStringList{folder.path("./DL9X@B-DL-1 20240501.adi"),
                                              folder.path("./DL9X@B-DL-2 20240501.adi")}));
    const std::string text = folder.read("DL9X@B-DL-2 20240501.adi");
    EXPECT_NE(text.find("<ADIF_VER:5>3.1.7 <PROGRAMID:7>Quillon "), std::string::npos) << text;

    store.setOutdoorProgram(OutdoorProgram::sota);
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(folder.read("DL9X@DM_BW-001 20240501.csv"),
              "V2,DL9X,DM/BW-001,01/05/2024,1200,14MHz,CW,DL1ABC,,\r\n");
}

TEST_F(Outdoors, AreExportedWithALossOnlyIfTheUserSaysSo) {
    store.open(folder.write("log.adx",
                            "<ADX><RECORDS><RECORD><CALL>A</CALL><OPERATOR>DL9X</OPERATOR>"
                            "<MY_SIG_INFO>K-1</MY_SIG_INFO><A:B>1</A:B></RECORD></RECORDS></ADX>"));
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(folder.names(), "log.adx") << "cancelled";
    EXPECT_FALSE(store.errorMessage());
    ASSERT_EQ(panels.lossQuestions.size(), 1U);
    EXPECT_EQ(
        panels.lossQuestions[0].losses.join('|'),
        "DL9X@K-1 .adi: Nicht alles käme beim Lesen wieder: 1 Angabe in 1 QSO.|  QSO 1 mit „A“: Das Feld "
        "„A:B“ mit dem Wert „1“ ginge verloren: Das Format kann den Namen nicht schreiben.");
    panels.lossAnswer = LossAnswer::saveAnyway;
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(folder.names(), "DL9X@K-1 .adi log.adx");
}

TEST_F(Outdoors, KeepTheOpenFileWhereAnExportReplacesIt) {
    const std::string text = testing::adi({contact + "MY_SIG_INFO=DL-0001,DL-0002"});
    const QString open = folder.write(QStringLiteral("DL9X@DL-0002 20240501.adi"), text);
    folder.write(QStringLiteral("DL9X@DL-0001 20240501.adi"), text);
    store.open(open);
    std::string kept;
    store.beforeReplacing([&](const QString& path) { kept += folder.read(QFileInfo(path).fileName()); });
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(kept, text);
}

TEST_F(Outdoors, TellUnderOneNameWhyAnExportFailed) {
    openLog({contact + "MY_SIG_INFO=DLFF-0001,DLFF-\n", contact + "MY_SIG_INFO=DLFF-0002"});
    store.setOutdoorProgram(OutdoorProgram::wwff);
    told.sent();
    panels.answers = {folder.path(".")};
    store.exportOutdoor();
    EXPECT_EQ(error(),
              "POTA-Export fehlgeschlagen:\n„DL9X@DLFF-⏎ 20240501.adi“: Der Name einer Datei darf weder „/“ "
              "noch „..“ noch Steuerzeichen enthalten.");
    EXPECT_EQ(told.sent(), "errorMessage");
    EXPECT_EQ(folder.names(), "DL9X@DLFF-0001 20240501.adi log.adi");
    EXPECT_TRUE(fileManager.shown.isEmpty());
}

}  // namespace
}  // namespace quillon
