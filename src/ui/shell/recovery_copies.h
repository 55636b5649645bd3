#pragma once

#include "editor/typed_text.h"
#include "shell/session.h"

#include <QLockFile>

#include <cstdint>
#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace shell {

/// The copies of the table that outlive a run which ends with unsaved changes: one that is this
/// run's own and follows its changes, and further ones that stay. A copy that is there, or a file
/// of the user's that is named like one, is never written over.
class RecoveryCopies {
  public:
    /// Returns the texts that are typed into fields which were not left yet.
    using TypedTexts = std::function<std::vector<editor::TypedText>()>;

    /// The session must outlive the copies.
    explicit RecoveryCopies(const Session& session) : session_(session) {}

    /// Tells where typed texts are found, which a copy holds as if their fields had been left.
    void set_typed_texts(TypedTexts typed_texts) { typed_texts_ = std::move(typed_texts); }

    /// Returns whether the own copy lacks something of the table or of what is typed.
    bool is_behind() const;

    /// Brings the own copy up to date; it is removed where nothing is unsaved. Throws where neither
    /// the program's folder nor the user's own can be written.
    void update();

    /// Brings the own copy up to date and writes another one, which stays. To be called before a
    /// file is read into a table with unsaved changes. Throws as update does.
    void keep_another();

    /// Removes the own copy, since a save made it needless.
    void remove_own();

    /// Leaves the own copy to the next run, since this one ends.
    void let_go();

    /// Returns the stored path of the own copy; empty where there is none.
    const std::string& own() const { return own_; }

  private:
    struct State {
        std::uint64_t version = 0;
        std::vector<editor::TypedText> typed;
        friend bool operator==(const State&, const State&) = default;
    };

    State present() const;
    std::string bytes_of(const State& state) const;
    bool has_something(const State& state) const;
    void write_own(const std::string& bytes);

    const Session& session_;
    TypedTexts typed_texts_;
    std::string own_;
    std::string own_bytes_;
    std::unique_ptr<QLockFile> lock_; // tells other programs that the run of the own copy goes on
    State written_;
};

/// Returns the recovery copies in the program's folder and in the user's own, but for those whose
/// run still goes on.
std::vector<std::string> recovery_copies(const Session& session);

} // namespace shell
