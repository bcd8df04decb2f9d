#pragma once

#include "platform/error.h"

#include <QString>

#include <vector>

namespace platform {

/// Controls under one name, told apart by an index from 0.
template <typename Control>
class ControlArray {
   public:
    ControlArray() = default;
    explicit ControlArray(QString name) : name_(std::move(name)) {}

    const QString& name() const { return name_; }
    int size() const { return static_cast<int>(controls_.size()); }
    /// "txtWord(3)": the name that the control of an index carries.
    QString memberName(int index) const { return QStringLiteral("%1(%2)").arg(name_).arg(index); }

    void add(Control* control) {
        control->setObjectName(memberName(size()));
        controls_.push_back(control);
    }
    /// Throws SubscriptOutOfRange for an index that the form has no control for.
    Control& operator()(int index) const {
        if (index < 0 || index >= size())
            throw RuntimeError(
                ErrorCode::SubscriptOutOfRange,
                QStringLiteral("Subscript out of range: there is no %1.").arg(memberName(index)));
        return *controls_[static_cast<std::size_t>(index)];
    }

    auto begin() const { return controls_.begin(); }
    auto end() const { return controls_.end(); }

   private:
    QString name_;
    std::vector<Control*> controls_;
};

}  // namespace platform
