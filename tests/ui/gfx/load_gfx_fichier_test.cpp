#include "data/run_time_error.h"
#include "gfx/load_gfx_fichier.h"
#include "shell/session.h"
#include "support/folder.h"

#include <gtest/gtest.h>

namespace {

using data::ErrorNumber;

class LoadGfxFichier : public testing::Test {
  protected:
    std::string descriptor(std::string_view bytes) const { return folder.write("a.spr", bytes); }

    /// Returns the error that the loading of the file ends with.
    data::RunTimeError error_of(const std::string& path) {
        try {
            gfx::load_gfx_fichier(session, "ville", path, "set");
        } catch (const data::RunTimeError& error) {
            return error;
        }
        throw std::runtime_error("loaded without an error");
    }

    support::Folder folder;
    shell::Session session;
};

TEST_F(LoadGfxFichier, KeepsTheFileAndTheFolderAsItStands) {
    session.configuration.graphics_folder = "c:\\gfx";
    const std::string path = descriptor("Bitmap=\"a.bmp\" origin x=1 y=2 frames=3");
    gfx::load_gfx_fichier(session, "Ville", path, "set");
    session.configuration.graphics_folder = "c:\\other";
    gfx::load_gfx_fichier(session, "no kind", path, "");

    const auto files = session.graphics.files.saved();
    ASSERT_EQ(files.size(), 2);
    EXPECT_EQ(files[0].kind + files[0].path + files[0].set_name, "Ville" + path + "set");
    EXPECT_EQ(files[1].kind, "no kind");
    EXPECT_EQ(session.graphics.sprites.of(gfx::SpriteKind::ville).rows[0].bitmap_path,
              "c:\\gfx\\bmp\\a.bmp");
}

TEST_F(LoadGfxFichier, ErrorsNameTheFile) {
    EXPECT_EQ(error_of(folder.path("none.spr")).number(), ErrorNumber::file_not_found);
    EXPECT_EQ(session.graphics.files.count(), 0);
    const auto error = error_of(descriptor("frames=1\r\nBitmap=a.bmp"));
    EXPECT_EQ(error.number(), ErrorNumber::invalid_procedure_call);
    EXPECT_NE(error.place().in_english().find("a.spr, line 2: "), std::string::npos)
        << error.what();
    EXPECT_EQ(session.graphics.files.count(), 1); // the record is there, the sprite unfinished

    const std::string empty = descriptor("");
    for (int loaded = 1; loaded < 25; ++loaded)
        gfx::load_gfx_fichier(session, "ville", empty, "set");
    const auto full = error_of(empty);
    EXPECT_EQ(full.number(), ErrorNumber::subscript_out_of_range);
    EXPECT_NE(full.place().in_english().find("a.spr, record 26: "), std::string::npos)
        << full.what();
}

} // namespace
