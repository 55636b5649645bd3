#include "support/bitmaps.h"
#include "support/program.h"

#include <QFile>
#include <QImage>

#include <vector>

namespace {

using support::Program;

TEST_F(Program, ArgumentsAndWhatTheyEndWith) {
    folder.write("good.csv", province_line("5", "\r\n") + province_line("2018", "\r\n"));
    folder.write("unix.csv", "Id;Name\n" + province_line("5", "\n"));
    folder.write("none.csv", province_line("2019", "\r\n"));
    folder.write("empty.csv", "");
    folder.write("a.bmp", bitmaps::noise({8, 8}));
    folder.write("short.csv", province_line("5", "\r\n") + "6;only;three\r\n");
    const struct {
        QStringList arguments;
        int status;
        std::vector<const char*> errors;
        const char* output = "";
    } rows[] = {
        {{"--help"}, 0, {}, "--screenshot"},
        {{"--version"}, 0, {}, "Province Editor " PROVINCE_EDITOR_VERSION "\n"},
        {{"--paint"}, 2, {"paint", "Usage"}},
        {{"file.csv"}, 2, {"file.csv", "Usage"}},
        {{"--csv"}, 2, {"csv", "Usage"}},
        {{"--map1", "x.bmp"}, 2, {"--id-map"}},
        {{"--offset", "1,2"}, 2, {"--offset"}},
        {{"--map1", "a", "--id-map", "b", "--offset", "1,40000"}, 2, {"40000"}},
        {{"--size", "10"}, 2, {"--size", "WIDTHxHEIGHT"}},
        {{"--size", "0x10"}, 2, {"--size"}},
        {{"--size", "10x20000"}, 2, {"--size"}},
        {{"--size", "10x10"}, 1, {"at least"}},
        {{"--tab", "6"}, 2, {"1 to 5"}},
        {{"--tab", "x"}, 2, {"1 to 5"}},
        {{"--mode", "city"}, 2, {"armees"}},
        {{"--zoom", "3"}, 2, {"--zoom", "1/32"}},
        {{"--colour", "Colour"}, 2, {"Colour", "header"}},
        {{"--colour", "Name"}, 2, {"Name"}},
        {{"--colour", "Religion"}, 2, {"needs the maps"}},
        {{"--mode", "ville"}, 2, {"--mode needs the maps"}},
        {{"--csv", "good.csv"}, 0, {"good.csv: provinces read: 2"}},
        {{"--csv", "unix.csv"}, 0, {"provinces read: 0", "carriage return"}},
        {{"--csv", "none.csv"}, 0, {"provinces read: 0", "identifier from 1 to 2018"}},
        {{"--csv", "empty.csv"}, 0, {"provinces read: 0", "empty"}},
        {{"--csv", "absent.csv"}, 1, {"absent.csv", "ile not found"}},
        {{"--csv", "."}, 1, {"file was expected"}},
        {{"--csv", "short.csv"}, 1, {"short.csv", "line 2", "province 6", "column 3"}},
        {{"--map1", "absent.bmp", "--id-map", "absent.bmp"}, 1, {"absent.bmp"}},
        {{"--map1", "a.bmp", "--id-map", "a.bmp", "--map2", "absent.bmp"}, 1, {"absent.bmp"}},
        {{"--select", "5--7"}, 1, {"province identifiers and ranges"}},
        {{"--select", "1-2019"}, 1, {"2019"}},
        {{"--select", "1-2018"}, 0, {}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.arguments.join(' ').toStdString());
        EXPECT_EQ(run(row.arguments + QStringList{"--screenshot", "picture.png"}), row.status);
        for (const char* part : row.errors)
            EXPECT_NE(errors.find(part), std::string::npos) << part << " in " << errors;
        EXPECT_NE(output.find(row.output), std::string::npos) << output;
        const bool painted = row.status == 0 && *row.output == '\0';
        EXPECT_EQ(QFile::remove(folder.native("picture.png")), painted);
        EXPECT_EQ(errors.empty(), row.errors.empty()) << errors;
        EXPECT_FALSE(QFile::exists(folder.native("recovered.csv"))) << "nothing was changed";
    }
}

TEST_F(Program, PaintsItsWindow) {
    ASSERT_EQ(run({"--screenshot", "picture.png"}), 0);
    const QImage picture(folder.native("picture.png"));
    EXPECT_EQ(picture.size(), QSize(1280, 720));
    EXPECT_NE(picture.pixel(10, 10), picture.pixel(300, 300)) << "menu bar and workspace";
    const auto painted = [this](const QStringList& how) {
        EXPECT_EQ(run(QStringList{"--screenshot", "picture.png", "--size", "1400x900"} + how), 0);
        return QImage(folder.native("picture.png"));
    };
    folder.write("map.bmp", bitmaps::painted(8, 8, [](int, int) { return 0U; }));
    const QImage tab_1 = painted({});
    EXPECT_EQ(tab_1.size(), QSize(1400, 900));
    EXPECT_EQ(painted({"--tab", "1"}), tab_1);
    EXPECT_NE(painted({"--tab", "5"}), tab_1);
    const QStringList maps = {"--map1", "map.bmp", "--id-map", "map.bmp"};
    EXPECT_NE(painted(maps + QStringList{"--mode", QString::fromUtf8("armées")}), painted(maps));
    EXPECT_NE(painted(maps + QStringList{"--zoom", "8"}), painted(maps));
    EXPECT_NE(painted(maps + QStringList{"--colour", "religion"}), painted(maps));
    for (const char* option : {"--size", "--tab", "--mode", "--zoom", "--colour"}) {
        EXPECT_EQ(run({option, "1"}), 2);
        EXPECT_NE(errors.find("needs --screenshot"), std::string::npos) << errors;
    }
    EXPECT_FALSE(QFile::exists(folder.native("settings.ini")));
    EXPECT_EQ(run({"--screenshot", "absent/picture.png"}), 1);
    EXPECT_NE(errors.find("absent/picture.png"), std::string::npos);
}

TEST_F(Program, NamesTheFileThatItCannotStartWith) {
    std::string too_many;
    for (int n = 0; n < 12; ++n)
        too_many += "\"RELIGION_x\",\"x\"\r\n";
    const struct {
        const char* configuration;
        const char* language; // bytes of own.lng, none: the file is absent
        std::vector<const char*> errors;
    } rows[] = {
        {"\"LAN\",\"own.lng\",0\r\n",
         nullptr,
         {"config.txt, record LAN", "own.lng: ", "ile not found"}},
        {"\"LAN\",\"own.lng\",0\r\n", too_many.c_str(), {"own.lng", "line 12", "RELIGION_"}},
        {"\"LAN\",\"own.lng\",0\r\n", "\"MENU_a\"", {"own.lng", "line 1"}},
        {"\"LAN\",\"own.lng\",0\r\n", "\xFF\xFE\"", {"record LAN", "own.lng", "UTF-16"}},
        {"\xFE\xFF", nullptr, {"config.txt", "UTF-16"}},
        {"\"LAN\",\"english.lng\"\r\n", nullptr, {"config.txt", "inside a record"}},
        {"\"GFX2\",\"c:\",40000\r\n", nullptr, {"config.txt", "line 1", "40000"}},
        {"\"GFX\",\"c:\",0\r\n\"ville\",\"c:\\absent.spr\",\"x\"\r\n",
         nullptr,
         {"config.txt", "line 2", "absent.spr"}},
        {"\"LAN\",\"french.lng\",0\r\n\"ville\",\"c:\\absent.spr\",\"x\"\r\n",
         nullptr,
         {"ligne 2", "absent.spr"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.configuration);
        folder.write("config.txt", row.configuration);
        if (row.language != nullptr)
            folder.write("own.lng", row.language);
        EXPECT_EQ(run({"--screenshot", "picture.png"}), 1);
        for (const char* part : row.errors)
            EXPECT_NE(errors.find(part), std::string::npos) << part << " in " << errors;
    }
}

TEST_F(Program, ASystemWithoutADisplayIsToldSo) {
    auto environment = process.processEnvironment();
    for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
        environment.remove(QLatin1String(name));
    process.setProcessEnvironment(environment);
    EXPECT_EQ(run({}), 1);
    EXPECT_NE(errors.find("no display"), std::string::npos) << errors;
    EXPECT_EQ(run({"--screenshot", "picture.png"}), 0) << errors;
}

TEST_F(Program, WhatAPackageInstalledKeepsItsFilesInAFolderOfTheUsersOwn) {
    const QString program = folder.native("bin/program");
    folder.make_folder("bin");
    ASSERT_TRUE(QFile::copy(QStringLiteral(PROGRAM), program));
    QFile::rename(folder.native("english.lng"), folder.native("bin/english.lng"));
    auto environment = process.processEnvironment();
    environment.insert(QStringLiteral("XDG_DATA_HOME"), folder.native("data"));
    process.setProcessEnvironment(environment);
    const auto ends_with = [&](const QStringList& arguments) {
        process.start(program, arguments);
        EXPECT_TRUE(process.waitForFinished(20000));
        return process.exitCode();
    };
    folder.write("a.csv", province_line("5", "\r\n"));
    const QStringList save = {"--csv", "a.csv", "--save", "a.csv"};
    EXPECT_EQ(ends_with(save), 0);
    EXPECT_TRUE(folder.has("bin/backups")) << "a portable copy";
    EXPECT_FALSE(folder.has("data"));
    folder.write("bin/installed-by-package");
    EXPECT_EQ(ends_with(save), 0);
    EXPECT_TRUE(folder.has("data/Province Editor/backups"));
    EXPECT_EQ(folder.read("data/Province Editor/english.lng"), folder.read("bin/english.lng"));
    folder.write("data/Province Editor/english.lng", "\"TEXTE_locale\",\"en\"\r\n");
    EXPECT_EQ(ends_with({"--screenshot", "picture.png"}), 0);
    EXPECT_LT(folder.read("data/Province Editor/english.lng").size(), 50U)
        << "the user's own is not written over";
}

#ifdef Q_OS_UNIX
TEST_F(Program, SignalsThatEndItAndThatDoNot) {
    const struct {
        const char* ignored; // by who starts the program, as nohup does
        std::vector<const char*> sent;
        int status;
    } rows[] = {
        {"PIPE", {"QUIT"}, 128 + 3},
        {"QUIT", {"PIPE", "HUP"}, 128 + 1},
        {"HUP INT", {"HUP", "INT", "TERM"}, 128 + 15},
    };
    for (const auto& row : rows) {
        process.start("/bin/sh", {"-c", QStringLiteral("trap '' %1; exec \"$@\"").arg(row.ignored),
                                  "sh", PROGRAM, "--folder", folder.native({}), "--csv",
                                  QString::fromStdString(folder.write("a.csv", ""))});
        process.setReadChannel(QProcess::StandardError);
        while (!process.canReadLine())
            ASSERT_TRUE(process.waitForReadyRead(20000)) << "until it works";
        for (const char* signal : row.sent)
            QProcess::execute("kill", {"-s", signal, QString::number(process.processId())});
        ASSERT_TRUE(process.waitForFinished(20000));
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << row.ignored;
        EXPECT_EQ(process.exitCode(), row.status) << row.ignored;
    }
}
#endif

} // namespace
