#include "data/province_file.h"
#include "support/bitmaps.h"
#include "support/program.h"

#include <vector>

namespace {

/// Runs without a window, on a system that has no display.
class BatchRun : public support::Program {
  protected:
    BatchRun() {
        auto environment = process.processEnvironment();
        for (const char* name : {"QT_QPA_PLATFORM", "DISPLAY", "WAYLAND_DISPLAY"})
            environment.remove(QLatin1String(name));
        process.setProcessEnvironment(environment);
        table.load(5, table_column(data::column::name), "Old");
        good = data::write_provinces(table);
        folder.write("good.csv", good);
    }
    struct Row {
        QStringList arguments;
        int status;
        std::vector<const char*> output; // parts
        const char* error = "provinces read: 2018";
        std::string saved = "before";
    };
    /// Runs the rows' command lines and looks at all that comes of them.
    void expect(const std::vector<Row>& rows) {
        folder.write("saved.csv");
        const QStringList names = folder.names();
        for (const auto& row : rows) {
            SCOPED_TRACE(row.arguments.join(' ').toStdString());
            folder.write("saved.csv", "before");
            EXPECT_EQ(run(row.arguments), row.status) << errors;
            for (const char* part : row.output)
                EXPECT_NE(output.find(part), std::string::npos) << part << " in " << output;
            EXPECT_EQ(output.empty(), row.output.empty()) << output;
            EXPECT_NE(errors.find(row.error), std::string::npos) << errors;
            EXPECT_EQ(folder.read("saved.csv"), row.saved);
            const bool is_saved = row.saved != "before";
            QStringList written = folder.names();
            EXPECT_EQ(written.removeAll("backups"), is_saved ? 1 : 0);
            EXPECT_EQ(written, names) << "nothing else is written";
            QDir backups(folder.native("backups"));
            for (const auto& name : backups.entryList(QDir::Files))
                EXPECT_EQ(folder.read("backups/" + name), "before");
            backups.removeRecursively();
        }
    }
    /// Writes files that reading does not take whole, and a map.
    void write_damaged_files() const {
        const std::string rest = std::string(57, ';') + "0;0\r\n";
        folder.write("bad.csv", good_but("6" + rest + "7;;;", "6;only;three\r\n7;;;nope"));
        folder.write("lone.csv", good_but("\r\n100;", "\n100;"));
        folder.write("unix.csv", "Id;Name\n5;Old\n");
        folder.write("empty.csv");
        folder.write("map.bmp", bitmaps::noise({8, 8}));
    }
    /// Returns the good file with other bytes instead of the first ones that are there.
    std::string good_but(const std::string& bytes, const std::string& instead) const {
        std::string file = good;
        return file.replace(file.find(bytes), bytes.size(), instead);
    }

    data::ProvinceTable table;
    std::string good;
    const QStringList in = {"--csv", "good.csv"};
    const QStringList save = {"--save", "saved.csv"};
    const QStringList set = {"--select", "5;7-8", "--set", "2=été=1", "--set", "religion =nope"};
    const QStringList maps = {"--map1", "map.bmp", "--id-map"};
};

TEST_F(BatchRun, BytesInCommandLineBytesAndStatusOut) {
    write_damaged_files();
    const std::string cell = good_but(";Old;", ";Ol\nd;");
    folder.write("cell.csv", cell);
    data::ProvinceTable written = table;
    for (const int province : {5, 7, 8}) {
        written.write(province, table_column(data::column::name), "\xE9t\xE9=1");
        written.write(province, table_column(data::column::religion), "nope");
    }
    const std::string changed = data::write_provinces(written);
    expect({
        {in + QStringList{"--check"}, 0, {}},
        {in + QStringList{"--diff", "good.csv"}, 0, {}},
        {in + save, 0, {}, "2018", good},
        {{"--csv", "cell.csv", "--save", "saved.csv"}, 0, {}, "2018", cell},
        {in + set + save, 0, {}, "2018", changed},
        {in + set + save + QStringList{"--diff", "saved.csv"}, 0, {}, "2018", changed},
        {in + set + save + QStringList{"--check", "--diff", "good.csv"},
         1,
         {"good.csv:7: province 5, 4 (Religion): 'nope' is no code of the language file\n",
          "province 5, 2 (Name): \"Old\" -> \"été=1\"\n",
          "province 8, 4 (Religion): \"\" -> \"nope\"\n"},
         "2018",
         changed},
        {{"--csv", "bad.csv", "--check"},
         1,
         {"bad.csv:8: province 6: the line has 3 fields, reading needs at least 57 and cannot take "
          "it\nbad.csv:9: province 7, 4 (Religion): "},
         "provinces read: 2017"},
        {{"--csv", "lone.csv", "--check"}, 1, {"lone.csv:101: province 99: line feeds"}, "2017"},
        {{"--csv", "unix.csv", "--check"}, 1, {"unix.csv:1: "}, "carriage return"},
        {in + QStringList{"--check"} + maps + QStringList{"map.bmp"}, 0, {"good.csv: ", "hint: "}},
    });
}

TEST_F(BatchRun, WrongUseDoesNothing) {
    const auto with = [this](const char* value) {
        return in + save + QStringList{"--select", "5", "--set", QString::fromUtf8(value)};
    };
    expect({
        {with("99=a"), 2, {}, "\"99\""},
        {with("Terrain x=1"), 2, {}, "several"},
        {with("2=a;b"), 2, {}, "semicolon"},
        {with("2=a\nb"), 2, {}, "line end"},
        {with("2=Ж"), 2, {}, "code page"},
        {in + save + QStringList{"--set", "2=a"}, 2, {}, "--select"},
        {in + QStringList{"--select", "5--7", "--check"}, 2, {}, "5--7"},
        {in + QStringList{"--select", "5;2019", "--check"}, 2, {}, "2019"},
        {in + QStringList{"--select", "5--7", "--set", "2=a"}, 2, {}, "5--7"},
        {in + QStringList{"--check", "--screenshot", "picture.png"}, 2, {}, "--screenshot"},
        {save, 2, {}, "--csv"},
        {{"--check"}, 2, {}, "--csv"},
        {in + QStringList{"--check", "--colour"}, 2, {}, "Usage"},
    });
}

TEST_F(BatchRun, FilesThatCannotBeReadOrWritten) {
    write_damaged_files();
    const QStringList check = in + QStringList{"--check"};
    expect({
        {{"--csv", "absent.csv", "--check"}, 3, {}, "absent.csv"},
        {QStringList{"--csv", "bad.csv"} + save, 3, {}, "line 8, province 6"},
        {QStringList{"--csv", "bad.csv", "--check"} + save, 3, {}, "line 8, province 6"},
        {QStringList{"--csv", "lone.csv"} + save, 3, {}, "line feed"},
        {QStringList{"--csv", "unix.csv"} + save, 3, {}, "no province"},
        {QStringList{"--csv", "empty.csv"} + save, 3, {}, "no province"},
        {in + QStringList{"--save", "absent/saved.csv"}, 3, {}, "absent"},
        {in + QStringList{"--diff", "absent.csv"}, 3, {}, "absent.csv"},
        {in + QStringList{"--diff", "bad.csv"}, 3, {}, "bad.csv, line 8"},
        {check + maps + QStringList{"absent.bmp"}, 3, {}, "absent.bmp"},
        {check + QStringList{"--map1", "absent.bmp", "--id-map", "map.bmp"}, 3, {}, "absent.bmp"},
    });
}

TEST_F(BatchRun, AsksNoWindowSystemAndReadsOnlyWhatItNeeds) {
    auto environment = process.processEnvironment();
    environment.insert("QT_QPA_PLATFORM", "absent");
    process.setProcessEnvironment(environment);
    folder.write("config.txt", "\"GFX\",\"c:\",0\r\n\"ville\",\"c:\\absent.spr\",\"x\"\r\n"
                               "\"LAN\",\"own.lng\",0\r\n");
    EXPECT_EQ(run({"--csv", "good.csv", "--diff", "good.csv"}), 0) << errors;
    EXPECT_EQ(run({"--csv", "good.csv", "--save", "saved.csv", "--check"}), 3);
    EXPECT_NE(errors.find("own.lng"), std::string::npos) << errors;
    EXPECT_FALSE(folder.has("saved.csv")) << "what the check lacks is told before the save";
    folder.write("own.lng",
                 "\"RELIGION_own\",\"Own\"\r\n\"TEXTE_problem_unknown_code\",\"%1?\"\r\n");
    for (const auto& [religion, problems] : {std::pair("own", ""), std::pair("new", "new?\n")}) {
        run({"--csv", "good.csv", "--select", "5", "--set", QStringLiteral("4=%1").arg(religion),
             "--check"});
        EXPECT_TRUE(output.ends_with(problems)) << output;
        EXPECT_EQ(output.empty(), *problems == '\0') << output;
    }
}

#ifdef Q_OS_LINUX
TEST_F(BatchRun, AFullDiskLeavesTheOldFile) {
    limit_files_to(1000);
    folder.write("saved.csv", "before");
    const QStringList names = folder.names();
    EXPECT_EQ(run(in + save), 3);
    EXPECT_NE(errors.find("Run-time error 75"), std::string::npos) << errors;
    EXPECT_EQ(folder.read("saved.csv"), "before");
    EXPECT_EQ(folder.names().size(), names.size() + 1) << "only the backup is new";
}

TEST_F(BatchRun, BackupsGoWhereThoseOfTheWindowGo) {
    folder.make_folder("data");
    auto environment = process.processEnvironment();
    for (const char* data : {"data", "good.csv"}) {
        folder.write("saved.csv", "before");
        environment.insert("XDG_DATA_HOME", folder.native(QString::fromLatin1(data)));
        process.setProcessEnvironment(environment);
        EXPECT_EQ(run(QStringList{"--folder", "good.csv"} + in + save), 0) << errors;
        EXPECT_EQ(folder.read("saved.csv"), good);
    }
    const QDir backups(folder.native("data/Province Editor/backups"));
    EXPECT_EQ(backups.entryList(QDir::Files).size(), 1);
    EXPECT_NE(errors.find("no backup"), std::string::npos) << errors;
}
#endif

TEST_F(BatchRun, NamesOutsideTheCodePage) {
    folder.write("мир/Ж.csv", good);
    folder.write("мир/english.lng", folder.read("english.lng"));
    const QStringList files = {"--folder", "мир", "--csv", "мир/Ж.csv", "--save", "мир/Ш.csv"};
    EXPECT_EQ(run(files + QStringList{"--diff", "мир/Ж.csv"}), 0) << errors;
    EXPECT_EQ(folder.read("мир/Ш.csv"), good);
    EXPECT_EQ(run(files + QStringList{"--select", "5", "--set", "4=nope", "--check"}), 1);
    EXPECT_EQ(output, "мир/Ж.csv:7: province 5, 4 (Religion): 'nope' is no code of the language "
                      "file\n");
}

#ifdef Q_OS_LINUX
TEST_F(BatchRun, OutputThatIsLostIsNoSuccess) {
    process.setStandardOutputFile("/dev/full");
    EXPECT_EQ(run({"--csv", "good.csv", "--check"}), 0) << "there is nothing to print";
    EXPECT_EQ(run({"--csv", "good.csv", "--select", "5", "--set", "4=nope", "--check"}), 3);
}
#endif

#ifdef Q_OS_UNIX
TEST_F(BatchRun, AWindowShowsWhatWasSet) {
    auto environment = process.processEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("ROBOT", "nom_province\n!"); // enters what the field shows
    process.setProcessEnvironment(environment);
    start({"--folder", folder.native(), "--csv", "good.csv", "--select", "5;6", "--set", "2=New"},
          ROBOT);
    while (!process.canReadLine())
        ASSERT_TRUE(process.waitForReadyRead(20000));
    process.terminate();
    ASSERT_TRUE(process.waitForFinished(20000));
    const std::string copy = folder.read("recovered.csv");
    EXPECT_NE(copy.find("\r\n5;New;"), std::string::npos);
    EXPECT_NE(copy.find("\r\n6;New;"), std::string::npos);
}
#endif

} // namespace
