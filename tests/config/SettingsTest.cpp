// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>

#include "config/frmSetup.h"
#include "config/modCrypt.h"
#include "tests/support/SettingsRig.h"

namespace vell::test {

using testing::ElementsAre;
using testing::HasSubstr;

class SettingsTest : public testing::Test, protected SettingsRig {
  protected:
    // The fields that are not as in a program without settings.
    [[nodiscard]] static std::string changed(const Settings& s) {
        Settings none;
        none.AutoUpdateCheck = true;
        none.AgentName = "VELL_2.0.15_user:";
        std::string text;
        const std::string now = fieldsOf(s), usual = fieldsOf(none);
        const auto a = Split(now, ";"), b = Split(usual, ";");
        for (std::size_t i = 0; i < a.size(); ++i)
            if (a[i] != b[i]) text.append(a[i]).append(";");
        return text;
    }
    [[nodiscard]] static std::string fieldsOf(const Settings& s) {
        const auto n = [](double number) { return NumberText(number); };
        return "Protocol=" + s.Protocol + ";UseHTTP=" + n(s.UseHTTP) + ";Host=" + s.Host + ";Port=" + n(s.Port) +
               ";Uid=" + s.Uid + ";Pwd=" + s.Pwd + ";Retry=" + n(s.RetryOnFailure) + ";Delay=" + n(s.RetryDelay) +
               ";TimeOut=" + n(s.TimeOut) + ";Passive=" + n(s.Passive) + ";pUser=" + s.proxyUsername +
               ";pPwd=" + s.proxyPwd + ";LocalDir=" + s.LocalDir + ";DialUp=" + s.DialUp +
               ";Print=" + n(s.PrintOnDownload) + ";Close=" + n(s.CloseConnection) + ";Check=" + n(s.AutoUpdateCheck) +
               ";Server=" + n(s.AutoUpdateServer) + ";Notify=" + n(s.AutoUpdateNotify) + ";Auto=" + n(s.AutoPlayDelay) +
               ";All=" + n(s.PrintAllDelay) + ";Debug=" + n(s.Debug) + ";Agent=" + s.AgentName;
    }
    void load(const std::string& file) {
        folder.put("vell.ini", file);
        loader.GetSetup();
    }
    void fillIn(std::initializer_list<const char*> entries) {
        const char* const* entry = entries.begin();
        for (const SettingRow& row : setupRows())
            dialog.setEntry(row.Field, *entry++);
    }
    std::string scrambled(std::string_view clear) {
        std::string key;
        return Encrypt(clear, key, log);
    }

    frmSetup dialog{{setup, loader, ini, log, files, english, folder.text()}};
};

TEST_F(SettingsTest, eachKeyFillsItsOwnFieldAndLeavesTheOthersAtTheirDefaults) {
    const std::string table =
        "[Host]Protocol=FTP>Protocol=FTP;UseHTTP=0;|[host]PROTOCOL = ftp>Protocol=ftp;|[Host]Host=a.b>Host=a.b;|"
        "[Host]Host=#NF#>|[Host]Host=a%b>Host=ab;|[Host]Host>|\xEF\xBB\xBF[Host]Host=bom>Host=bom;|[Host]Host=" +
        std::string(300, 'h') + ">Host=" + std::string(249, 'h') +
        ";|[Host]Port=2121>Port=2121;|[Host]Port=65000>Port=6500;|[Host]Port=12abc>Port=12;|[Host]Port=1e99>Port=32767;"
        "|[Host]Port=-1>Port=-1;|[General]Debug=99999999999>|[Host]Port=abc>|"
        "[Host]Uid=\xE1>Uid=\xE1;Agent=VELL_2.0.15_user:\xE1;|[Host]RetryOnFailure=12>Retry=1;|"
        "[Host]RetryDelay=7.5>Delay=7;|[Host]RetryDelay=.5>Delay=0.5;|[Host]TimeOut=300>TimeOut=30;|"
        "[Host]TimeOut=.5>|[Host]Passive=1>|[Host]proxyUsername=ann>pUser=ann;|[Host]Pwd=wo\xC0>Pwd=AB;|"
        "[Host]proxyPwd=wo\xC0>pPwd=AB;|[Download]LocalDir=/c>LocalDir=/c;|[Download]Dialup=Modem>DialUp=Modem;|"
        "[Download]PrintOnDownload=-1>Print=1;|[Download]PrintOnDownload=yes>|[Download]PrintOnDownload=70000>|"
        "[Download]CloseConnection=1>Close=1;|[Download]CloseConnection=1x>|[Download]AutoUpdateCheck=>|"
        "[Download]AutoUpdateCheck=0>Check=0;|[Download]AutoUpdateServer=1>Server=1;|"
        "[Download]AutoUpdateNotify=1x>Notify=1;|[General]AutoPlayDelay=100>Auto=10;|"
        "[General]PrintAllDelay=5>All=5;|[General]Debug=2>Debug=2;";
    for (const std::string_view row : Split(table, "|")) {
        const std::string file(row.substr(0, row.find('>')));
        const std::string expected(row.substr(row.find('>') + 1));
        load(Replace(Replace(file, "]", "]\r\n"), "%", std::string(1, '\0')));
        EXPECT_EQ(changed(setup), expected) << file;
        // Three numbers must be there: what is missing, or no number, is told.
        const std::size_t good = InStr("Print=1; Close=1; Debug=2;", expected) > 0 && !expected.empty() ? 1 : 0;
        const std::string lines = logged();
        EXPECT_EQ(Split(lines, "HelpContext=0 in VellIniReadString()\n").size() - 1, 3 - good) << file << lines;
    }
}

TEST_F(SettingsTest, aDamagedPasswordEndsTheLoadWhereItStands) {
    for (const char* key : {"Pwd", "proxyPwd"}) {
        load("[Host]\r\nHost=old\r\nPwd=wo\xC0\r\n[Download]\r\nLocalDir=/old\r\n");
        load(std::string("[Host]\r\nHost=new\r\n") + key + "=bad\r\n[Download]\r\nLocalDir=/new\r\n");
        EXPECT_THAT((std::vector{setup.Host, setup.Pwd, setup.LocalDir}), ElementsAre("new", "AB", "/old"));
        EXPECT_THAT(loader.complaint(), HasSubstr("a password that cannot be read"));
        EXPECT_TRUE(logged().ends_with(" in Decrypt()\nGetSetup()\n"));
    }
}

TEST_F(SettingsTest, okLeavesWhatCouldNotBeReadAndWhatAnotherHasStoredMeanwhile) {
    load(
        "[Host]\r\nHost=a\r\nUid=u\r\nPort=65000\r\nRetryOnFailure=3\r\nRetryDelay=5\r\nproxyPwd=bad\r\nPwd=wo\xC0\r\n"
        "[Download]\r\nLocalDir=/clips\r\n[General]\r\nAutoPlayDelay=5\r\nPrintAllDelay=5\r\n");
    dialog.Form_Load();
    EXPECT_EQ(dialog.entry(&Settings::LocalDir), "/clips") << "it stands behind the damaged password";
    dialog.setEntry(&Settings::TimeOut, "20");
    dialog.setEntry(&Settings::Host, "mine");
    ini.VellIniWriteString("Host", "Host", "theirs");
    ini.VellIniWriteString("Host", "Uid", "theirs");
    const auto problem = dialog.cmdOk_Click().value_or(SetupProblem{});
    EXPECT_EQ(problem.Message, "");
    const std::string file = folder.get("vell.ini");
    for (const char* line :
         {"Host=mine\r\n", "Uid=theirs\r\n", "Port=6500\r\n", "proxyPwd=bad\r\n", "LocalDir=/clips\r\n"})
        EXPECT_THAT(file, HasSubstr(line));
}

TEST_F(SettingsTest, aFileThatCannotBeReadChangesNothingInMemory) {
    load("[Host]\r\nHost=a\r\n");
    std::filesystem::remove(folder.path() / "vell.ini");
    std::filesystem::create_directory(folder.path() / "vell.ini");
    loader.GetSetup();
    EXPECT_EQ(setup.Host, "a");
    EXPECT_THAT(loader.complaint(), HasSubstr("cannot be read"));
}

TEST_F(SettingsTest, theDialogRefusesEachEntryInItsTurnAndSavesNothingUntilAllAreRight) {
    const char* fullPath = "Download path must be a full path, such as /home/ann/clippings";
    const struct {
        SettingField field;
        std::vector<std::string> wrong;
        std::string message, right;
    } steps[] = {
        {&Settings::Host, {"", "   "}, "Host not specified", "h"},
        {&Settings::Port, {"", " ", "-1"}, "Port not specified", "99999999999"},
        {&Settings::Port, {"1e999", "40000"}, "Port set too high", "0"},
        {&Settings::Uid, {" "}, "Username not specified", "u"},
        {&Settings::Pwd, {"", " "}, "Password not specified", "p"},
        {&Settings::RetryOnFailure, {"", "0", "-1", "abc", "0.5"}, "Number of retries not specified", "1e999"},
        {&Settings::RetryOnFailure, {"32768"}, "Number of retries set too high", "12"},
        {&Settings::RetryDelay, {" ", "0", "abc"}, "Retry delay not specified", "50"},
        {&Settings::RetryDelay, {"50", "49.5", "999999"}, "Retry delay value set too high", "49"},
        {&Settings::AutoPlayDelay, {"", "0"}, "Auto play delay not specified", "50"},
        {&Settings::AutoPlayDelay, {"50"}, "Auto play delay set too high", "1"},
        {&Settings::TimeOut, {"", "-5"}, "Timeout not specified", "1e999"},
        {&Settings::TimeOut, {"99999999999"}, "Timeout set too high", "500"},
        {&Settings::PrintAllDelay, {"", "0"}, "Print All delay not specified", "50"},
        {&Settings::PrintAllDelay, {"50"}, "Print All delay set too high", "49"},
        {&Settings::LocalDir, {"", "  "}, "Download path not specified", "clips"},
        {&Settings::LocalDir, {"clips", "C:clips", "~/clips"}, fullPath, "/c"},
        // The file could not give these back.
        {&Settings::Uid, {"a\r\n[x]", "a\tb"}, "Uid must be one line without control characters", "u"},
        {&Settings::proxyPwd, {std::string(167, 'p')}, "proxyPwd is too long", std::string(166, 'p')},
        {&Settings::LocalDir, {"/" + std::string(249, 'd')}, "LocalDir is too long", "/" + std::string(248, 'd')},
    };
    dialog.setEntry(&Settings::Protocol, "FTP");
    for (const auto& step : steps)
        dialog.setEntry(step.field, step.wrong.back());
    for (const auto& step : steps) {
        for (const std::string& wrong : step.wrong) {
            dialog.setEntry(step.field, wrong);
            const auto problem = dialog.cmdOk_Click().value_or(SetupProblem{{}, "none"});
            EXPECT_EQ(problem.Message, "Error! " + step.message) << wrong;
            EXPECT_TRUE(problem.Field == step.field) << wrong;
        }
        dialog.setEntry(step.field, step.right);
    }
    EXPECT_FALSE(folder.has("vell.ini"));
    EXPECT_FALSE(dialog.cmdOk_Click().has_value());
    EXPECT_EQ(setup.TimeOut, 50);  // the loader's cut
}

TEST_F(SettingsTest, aBoxThatWasLeftSaysWhatIsWrongWithItUntilItIsRight) {
    const struct {
        SettingField field;
        const char *typed, *then, *note;
    } cases[] = {
        {&Settings::Host, " ", " ", "Still missing"},
        {&Settings::Uid, "a\u2713", "a?", "Only Latin and Greek"},
        {&Settings::proxyUsername, "a\tb", "a\tb", "Has control characters"},
        {&Settings::RetryDelay, "77x", "77", "At most 49"},
        {&Settings::RetryOnFailure, "x", "0", "At least 1"},
        {&Settings::LocalDir, "clips/", "clips", "Not a full path"},
        {&Settings::proxyPwd, "\u03B1", "\xE1", ""},
    };
    dialog.Form_Load();
    for (const auto& [field, typed, then, note] : cases) {
        dialog.typed(field, typed);
        EXPECT_EQ(dialog.note(field), "") << typed;
        dialog.left(field);
        EXPECT_THAT((std::vector{dialog.entry(field), dialog.note(field)}), ElementsAre(then, note)) << typed;
    }
    dialog.typed(&Settings::Host, "h");
    EXPECT_EQ(dialog.note(&Settings::Host), "");
    const auto foreign = dialog.cmdOk_Click().value_or(SetupProblem{});
    EXPECT_EQ(foreign.Message, "Error! There is a character that is neither Latin nor Greek");
    dialog.typed(&Settings::TimeOut, "0");
    dialog.left(&Settings::TimeOut);
    EXPECT_EQ(dialog.note(&Settings::TimeOut), "") << "it is disabled";
    dialog.setEntry(&Settings::Protocol, "FTP");
    EXPECT_EQ(dialog.note(&Settings::TimeOut), "At least 1");
}

TEST_F(SettingsTest, proposesWorkingSettingsWhereThereAreNoneAndAsksForTheRestAlone) {
    dialog.Form_Load();
    std::string shown;
    for (const SettingRow& row : setupRows())
        shown += dialog.entry(row.Field) + ";";
    EXPECT_EQ(shown, "HTTP;;21;;3;5;20;0;;;;" + folder.text() + "/Clippings;;0;0;1;0;0;5;5;");
    dialog.setEntry(&Settings::Host, "h");
    dialog.setEntry(&Settings::Uid, "u");
    dialog.setEntry(&Settings::Pwd, "p");
    dialog.setEntry(&Settings::TimeOut, "0");  // its box is disabled
    EXPECT_EQ(dialog.cmdOk_Click().value_or(SetupProblem{}).Message, "");
    EXPECT_EQ(setup.LocalDir, folder.text() + "/Clippings");
    EXPECT_TRUE(folder.has("Clippings"));
    EXPECT_EQ(setup.RetryOnFailure, 3);
    dialog.Form_Load();
    EXPECT_TRUE(dialog.proposals().empty()) << "what is stored is no proposal";
}

TEST_F(SettingsTest, anUnwritableFileOrFolderIsToldAndTheEntriesStay) {
    load("[Host]\r\nHost=old\r\nUid=u\r\nPwd=wo\xC0\r\n");
    dialog.Form_Load();
    dialog.setEntry(&Settings::Host, "new");
    files.Trouble = "vell.ini";
    EXPECT_EQ(dialog.cmdOk_Click().value_or(SetupProblem{}).Message, "Error! The settings file could not be written");
    EXPECT_THAT((std::vector{dialog.entry(&Settings::Host), setup.Host}), ElementsAre("new", "old"));
    frmSetup homeless({setup, loader, ini, log, files, english, folder.text() + "/gone"});
    homeless.Form_Load();
    EXPECT_EQ(homeless.cmdOk_Click().value_or(SetupProblem{}).Message, "Error! Download path could not be made");
}

TEST_F(SettingsTest, theDialogSavesEveryKeyInItsOrderAndGivesItBack) {
    folder.put("vell.ini", "; mine\r\n[General]\r\nDebug=2\r\n");
    fillIn({"FTP",     "service.example", "2121",  "ann", "3", "49", "99", "1", "p\xE1", "proxy",
            "sec ret", "/clips",          "Modem", "1",   "0", "0",  "1",  "1", "7",     "1"});
    ASSERT_FALSE(dialog.cmdOk_Click().has_value());
    EXPECT_EQ(folder.get("vell.ini"),
              "; mine\r\n[General]\r\nDebug=2\r\nAutoPlayDelay=7\r\nPrintAllDelay=1\r\n"
              "[Host]\r\nProtocol=FTP\r\nHost=service.example\r\nPort=2121\r\nUid=ann\r\nRetryOnFailure=3\r\n"
              "RetryDelay=49\r\nTimeOut=99\r\nPassive=1\r\nproxyUsername=p\xE1\r\nproxyPwd=" +
                  scrambled("proxy") + "\r\nPwd=" + scrambled("sec ret") +
                  "\r\n[Download]\r\nLocalDir=/clips\r\nDialup=Modem\r\nPrintOnDownload=1\r\nCloseConnection=0\r\n"
                  "AutoUpdateCheck=0\r\nAutoUpdateServer=1\r\nAutoUpdateNotify=1\r\n");
    frmSetup again({setup, loader, ini, log, files, english, ""});
    again.Form_Load();
    for (const SettingRow& row : setupRows())
        EXPECT_EQ(again.entry(row.Field), row.Key == "Passive" ? "0" : dialog.entry(row.Field)) << row.Key;
}

TEST_F(SettingsTest, theDialogChangesTheSettingsAtOnceOnlyUntilItIsClosed) {
    load("[Host]\r\nProtocol=HTTP\r\n");
    dialog.Form_Load();
    const std::array<SettingField, 3> ofFtp{&Settings::Port, &Settings::TimeOut, &Settings::Passive};
    for (const SettingField& field : ofFtp)
        EXPECT_FALSE(dialog.isEnabled(field)) << rowOf(field).Key;
    dialog.setEntry(&Settings::Protocol, "FTP");
    for (const SettingField& field : ofFtp)
        EXPECT_TRUE(dialog.isEnabled(field)) << rowOf(field).Key;
    EXPECT_FALSE(setup.UseHTTP);
    dialog.Form_Unload();
    EXPECT_TRUE(setup.UseHTTP);
    dialog.setEntry(&Settings::RetryDelay, " 7.50x");
    dialog.setEntry(&Settings::Pwd, "007");
    dialog.normalise(&Settings::RetryDelay);
    dialog.normalise(&Settings::Pwd);
    EXPECT_EQ(dialog.entry(&Settings::RetryDelay), "7.5");
    EXPECT_EQ(dialog.entry(&Settings::Pwd), "007");
}

}  // namespace vell::test
