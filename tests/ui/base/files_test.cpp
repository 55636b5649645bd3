#include "base/files.h"
#include "data/run_time_error.h"
#include "support/folder.h"

#include <QDir>

#include <csignal>
#include <functional>
#include <gtest/gtest.h>
#include <optional>
#include <string>

#ifdef Q_OS_UNIX
#include <sys/resource.h>
#include <unistd.h>
#endif

namespace {

using base::create_file;
using base::read_file;
using base::replace_file;
using data::ErrorNumber;

class FilesTest : public testing::Test {
  protected:
    std::string path(const std::string& name) const { return folder.path() + "\\" + name; }

    /// Checks that the act fails with that number and names the file.
    static void expect_error(ErrorNumber number, const std::string& name,
                             const std::function<void()>& act) {
        try {
            act();
            ADD_FAILURE() << "no error for " << name;
        } catch (const data::RunTimeError& error) {
            EXPECT_EQ(error.number(), number) << error.what();
            EXPECT_NE(error.place().in_english().find(name), std::string::npos) << error.what();
        }
    }

    support::Folder folder;
};

TEST_F(FilesTest, BytesComeBack) {
    std::string bytes;
    for (int byte = 0; byte < 256; ++byte)
        bytes += static_cast<char>(byte);
    replace_file(path("x.csv"), bytes);
    EXPECT_EQ(read_file(path("x.csv")), bytes);
    replace_file(path("X.CSV"), ""); // letter case aside the same file
    EXPECT_EQ(read_file(path("x.csv")), "");
    EXPECT_EQ(folder.names(), QStringList("x.csv"));
}

TEST_F(FilesTest, MissingFileAndFolderAreErrors) {
    expect_error(ErrorNumber::file_not_found, "gone.csv", [&] { read_file(path("gone.csv")); });
    expect_error(ErrorNumber::path_not_found, "x.csv", [&] { read_file(path("no\\x.csv")); });
    expect_error(ErrorNumber::path_not_found, "x.csv",
                 [&] { replace_file(path("no\\x.csv"), ""); });
    EXPECT_EQ(folder.names(), QStringList());
}

TEST_F(FilesTest, FolderInPlaceOfAFileIsAnError) {
    folder.make_folder("map.bmp/inner");
    expect_error(ErrorNumber::path_file_access, "map.bmp", [&] { read_file(path("map.bmp")); });
    expect_error(ErrorNumber::path_file_access, "map.bmp",
                 [&] { replace_file(path("map.bmp"), "x"); });
    EXPECT_TRUE(QDir(folder.native("map.bmp/inner")).exists());
}

TEST_F(FilesTest, LongestNameIsReplaced) {
    const std::string name(255, 'n');
    replace_file(path(name), "old");
    replace_file(path(name), "new", base::Written::by_system);
    EXPECT_EQ(read_file(path(name)), "new");
    EXPECT_EQ(folder.names().size(), 1);
}

#ifdef Q_OS_UNIX

TEST_F(FilesTest, LinksPermissionsAndMissingTargetsStay) {
    replace_file(path("real.csv"), "old");
    QFile::setPermissions(folder.native("real.csv"), QFile::ReadOwner | QFile::WriteOwner);
    QFile::link("real.csv", folder.native("link.csv"));
    QFile::link("link.csv", folder.native("chain.csv"));
    QFile::link("gone.csv", folder.native("dangling.csv"));
    replace_file(path("chain.csv"), "new");
    replace_file(path("dangling.csv"), "made");
    EXPECT_EQ(read_file(path("real.csv")) + read_file(path("gone.csv")), "newmade");
    EXPECT_TRUE(QFileInfo(folder.native("chain.csv")).isSymLink());
    EXPECT_EQ(QFile::permissions(folder.native("real.csv")) & (QFile::ReadGroup | QFile::ReadOther),
              QFile::Permissions());
    EXPECT_FALSE(create_file(path("dangling.csv"), "planted"));
}

#ifdef Q_OS_LINUX
TEST_F(FilesTest, AnErrorOfTheDiskIsNoEndOfTheFile) {
    // Reading the process's memory from its beginning is an input error on every machine.
    expect_error(ErrorNumber::path_file_access, "mem", [] { read_file("/proc/self/mem"); });
}
#endif

/// No file can grow beyond that many bytes while this lives.
class FileSizeLimit {
  public:
    explicit FileSizeLimit(rlim_t bytes) : handler_(std::signal(SIGXFSZ, SIG_IGN)) {
        getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() {
        setrlimit(RLIMIT_FSIZE, &before_);
        std::signal(SIGXFSZ, handler_);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

  private:
    void (*handler_)(int);
    rlimit before_{};
};

/// The superuser may do everything; while this lives he is somebody who may not.
class Nobody {
  public:
    Nobody() {
        if (is_superuser_) {
            EXPECT_EQ(setresuid(nobody_, nobody_, 0), 0);
        }
    }
    ~Nobody() {
        if (is_superuser_) {
            EXPECT_EQ(setresuid(0, 0, 0), 0);
        }
    }
    Nobody(const Nobody&) = delete;
    Nobody& operator=(const Nobody&) = delete;

  private:
    static constexpr uid_t nobody_ = 65534;
    const bool is_superuser_ = geteuid() == 0;
};

TEST_F(FilesTest, FailedWriteLeavesTheOldFileWhole) {
    replace_file(path("x.csv"), "old");
    for (const std::size_t size : {std::size_t{101}, std::size_t{5'000'000}}) {
        std::optional<FileSizeLimit> limit(100);
        expect_error(ErrorNumber::path_file_access, "x.csv",
                     [&] { replace_file(path("x.csv"), std::string(size, 'n')); });
        limit.reset();
        EXPECT_EQ(read_file(path("x.csv")), "old");
        EXPECT_EQ(folder.names(), QStringList("x.csv"));
    }
}

TEST_F(FilesTest, MissingPermissionIsAnError) {
    const Nobody nobody;
    const support::Folder own;
    const std::string x = own.write("x.csv", "old");
    QFile::setPermissions(own.native("x.csv"), {});
    expect_error(ErrorNumber::permission_denied, "x.csv", [&] { read_file(x); });
    QFile::setPermissions(own.native("x.csv"), QFile::ReadOwner | QFile::WriteOwner);
    QFile::setPermissions(own.native(), QFile::ReadOwner | QFile::ExeOwner);
    expect_error(ErrorNumber::permission_denied, "new.csv",
                 [&] { replace_file(own.path("new.csv"), "new"); });
    QFile::setPermissions(own.native(), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    EXPECT_EQ(read_file(x), "old");
}

#endif

} // namespace
