#pragma once

#include <QString>
#include <QWidget>

#include <map>
#include <stdexcept>

namespace editor {

/// The panel's controls by their object names.
class Controls {
  public:
    /// Gives the control its object name, under which it is found from then on. Throws
    /// std::logic_error when another control has it.
    void add(const QString& name, QWidget* control) {
        control->setObjectName(name);
        if (!controls_.try_emplace(name, control).second)
            throw std::logic_error("two controls " + name.toStdString());
    }

    /// Returns the control. Throws std::logic_error when no control of that kind has the name.
    template <typename Control>
    Control& get(const QString& name) const {
        const auto found = controls_.find(name);
        auto* control = found == controls_.end() ? nullptr : dynamic_cast<Control*>(found->second);
        if (!control)
            throw std::logic_error("no control " + name.toStdString() + " of this kind");
        return *control;
    }

    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

  private:
    std::map<QString, QWidget*> controls_;
};

} // namespace editor
