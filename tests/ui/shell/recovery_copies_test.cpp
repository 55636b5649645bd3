#include "data/province_file.h"
#include "data/run_time_error.h"
#include "shell/backups.h"
#include "shell/own_folder.h"
#include "shell/recovery_copies.h"
#include "support/folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gtest/gtest.h>
#include <optional>
#include <string>

namespace {

constexpr data::TableColumn name_column = data::table_column(data::column::name);

class RecoveryCopies : public testing::Test {
  protected:
    RecoveryCopies() : data_home_(qgetenv("XDG_DATA_HOME")) {
        qputenv("XDG_DATA_HOME", QFile::encodeName(home.native("data")));
        session.program_folder = folder.path();
    }
    ~RecoveryCopies() override { qputenv("XDG_DATA_HOME", data_home_); }

    void write(int province, const std::string& text) {
        session.provinces.write(province, name_column, text);
    }
    static std::string name_in(const support::Folder& where, const QString& file, int province) {
        data::ProvinceTable table;
        data::read_provinces(where.read(file), table);
        return table.cell(province, name_column);
    }
    QStringList copies_in_folder() const {
        return QDir(folder.native()).entryList({QStringLiteral("*.csv")});
    }

    support::Folder folder;
    support::Folder home;
    shell::Session session;

  private:
    QByteArray data_home_;
};

TEST_F(RecoveryCopies, FollowTheChangesAndGoWithASave) {
    shell::RecoveryCopies copies(session);
    EXPECT_FALSE(copies.is_behind());
    write(5, "first");
    EXPECT_TRUE(copies.is_behind());
    copies.update();
    EXPECT_FALSE(copies.is_behind());
    write(5, "second");
    copies.update();
    EXPECT_EQ(copies_in_folder(), QStringList("recovered.csv"));
    EXPECT_EQ(name_in(folder, "recovered.csv", 5), "second");
    write(5, "third");
    copies.keep_another();
    EXPECT_EQ(name_in(folder, "recovered.csv", 5), "third") << "the run's own is up to date, too";
    session.provinces.mark_saved();
    copies.remove_own();
    copies.update();
    EXPECT_EQ(folder.names(), QStringList("recovered-1.csv")) << "the second one stays";
}

TEST_F(RecoveryCopies, HoldWhatIsTyped) {
    shell::RecoveryCopies copies(session);
    std::string typed = "typed";
    copies.set_typed_texts([&] {
        return std::vector<editor::TypedText>{{data::field_number(data::column::name), typed}};
    });
    copies.update();
    EXPECT_EQ(copies_in_folder(), QStringList()) << "nothing is selected";
    session.selection.apply("7");
    typed = "typed on";
    EXPECT_TRUE(copies.is_behind());
    copies.update();
    EXPECT_EQ(name_in(folder, "recovered.csv", 7), "typed on");
    EXPECT_EQ(session.provinces.cell(7, name_column), "");
    typed = "";
    copies.update();
    EXPECT_EQ(copies_in_folder(), QStringList()) << "put back by hand";
}

TEST_F(RecoveryCopies, NobodysFileIsTaken) {
    folder.write("RECOVERED.csv", "the user's own");
    folder.write("recovered-1.csv", "of an earlier run");
    QFile::link(home.native("planted"), folder.native("recovered-2.csv"));
    write(5, "kept");
    std::optional<shell::RecoveryCopies> copies(session);
    copies->update();
    std::optional<shell::RecoveryCopies> other(session);
    other->update();
    EXPECT_EQ(name_in(folder, "recovered-3.csv", 5) + name_in(folder, "recovered-4.csv", 5),
              "keptkept");
    EXPECT_EQ(folder.read("RECOVERED.csv") + folder.read("recovered-1.csv"),
              "the user's ownof an earlier run");
    EXPECT_FALSE(home.has("planted"));
    using Paths = std::vector<std::string>;
    EXPECT_EQ(recovery_copies(session), Paths{folder.path("recovered-1.csv")})
        << "the others' runs go on";
    other.reset();
    EXPECT_EQ(recovery_copies(session),
              (Paths{folder.path("recovered-1.csv"), folder.path("recovered-4.csv")}));
    copies->remove_own();
    EXPECT_FALSE(folder.has("recovered-3.csv"));
    EXPECT_TRUE(folder.has("recovered-4.csv"));
}

TEST_F(RecoveryCopies, AreFoundBesideALockThatNamesNoProgram) {
    const std::string copy = folder.write("recovered.csv", "kept");
    folder.write("recovered.csv.lock", "");
    EXPECT_EQ(recovery_copies(session), std::vector{copy});
}

TEST_F(RecoveryCopies, GoToTheUsersOwnFolder) {
    session.program_folder = folder.path("gone");
    write(5, "kept");
    shell::RecoveryCopies copies(session);
    copies.update();
    const std::string own = shell::own_folder();
    EXPECT_EQ(copies.own(), own + "\\recovered.csv");
    EXPECT_EQ(QFileInfo(base::native_path(copies.own())).permissions() &
                  (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
    copies.remove_own();
    QFile::setPermissions(base::native_path(own), QFile::Permissions(0x7777));
    EXPECT_THROW(copies.update(), data::RunTimeError) << "others could write there";
}

TEST_F(RecoveryCopies, ABackupKeepsWhatASaveReplaces) {
    shell::back_up(session, folder.path("none.csv"));
    EXPECT_EQ(shell::backups(session).size(), 0U);
    for (const char* bytes : {"one", "two", "three"})
        shell::back_up(session, folder.write("x.csv", bytes));
    const auto made = shell::backups(session);
    ASSERT_EQ(made.size(), 3U);
    EXPECT_EQ(base::read_file(made[0]).substr(0, 3), "one");
    for (int n = 0; n < 30; ++n)
        shell::back_up(session, folder.path("x.csv"));
    EXPECT_EQ(shell::backups(session).size(), 21U) << "the newest 20 and the first of the day";
}

} // namespace
