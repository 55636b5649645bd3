#pragma once

#include <QDialog>
#include <QString>

#include <array>

class QLabel;
class QLineEdit;
class QPushButton;

namespace map {
struct Maps;
}

namespace shell {
struct Session;
}

namespace gfx {

/// The map files dialog. Its answer is the session's cancelled flag: 0 after the maps' paths and
/// offsets were taken over, 1 after it was closed in any other way.
class Form2 : public QDialog {
    Q_OBJECT

  public:
    /// Opens with the proposed values in its fields.
    Form2(shell::Session& session, const map::Maps& proposed, QWidget* owner);

  public slots:
    void done(int result) override;

  private:
    static constexpr int file_count = 3; // map 1, map 2, ID map

    void lay_out();
    void apply_captions();
    void show_values(const map::Maps& maps);
    void browse(int index);
    void confirm();
    QString path_in(int index) const;
    QLabel* label(int number) const { return labels_.at(static_cast<std::size_t>(number - 1)); }
    QLineEdit* path_field(int index) const { return paths_.at(static_cast<std::size_t>(index)); }

    shell::Session& session_;
    std::array<QLabel*, 6> labels_{};
    std::array<QLineEdit*, file_count> paths_{};
    std::array<QPushButton*, file_count> browse_buttons_{};
    QLineEdit* x_offset_;
    QLineEdit* y_offset_;
    QPushButton* confirm_;
};

} // namespace gfx
