// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/RuntimeError.h"

#include <QObject>
#include <QWidget>

#include <map>

// The signals of a control array, one for all its elements.
class ControlArraySignals : public QObject
{
  Q_OBJECT

Q_SIGNALS:
  void Click(int index);
};

// Controls of one kind and name, told apart by an index. Owns none of them.
template <typename T>
class ControlArray : public ControlArraySignals
{
public:
  // Takes the children of `form` called name_0, name_1 and so on; gaps are allowed.
  void Collect(const QWidget& form, const QString& name)
  {
    const QString prefix = name + QLatin1Char('_');
    for (T* element : form.template findChildren<T*>()) {
      bool isNumber = false;
      const int index = element->objectName().mid(prefix.size()).toInt(&isNumber);
      if (isNumber && element->objectName().startsWith(prefix)) {
        elements_[index] = element;
        if constexpr (requires { &T::Click; }) {
          connect(element, &T::Click, this, [this, index] { Q_EMIT Click(index); });
        } else if constexpr (requires { &T::clicked; }) {
          connect(element, &T::clicked, this, [this, index] { Q_EMIT Click(index); });
        }
      }
    }
  }

  // Throws 340 for an index that the array has not.
  [[nodiscard]] T& operator[](int index) const
  {
    const auto found = elements_.find(index);
    if (found == elements_.end()) {
      RaiseNoSuchElement(index);
    }
    return *found->second;
  }

  [[nodiscard]] int LBound() const { return elements_.empty() ? 0 : elements_.begin()->first; }
  [[nodiscard]] int UBound() const { return elements_.empty() ? -1 : elements_.rbegin()->first; }
  [[nodiscard]] const std::map<int, T*>& All() const { return elements_; }

private:
  std::map<int, T*> elements_;
};
