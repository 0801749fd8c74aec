// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QString>

#include <functional>
#include <vector>

class Form;

// All forms of the program by name, and those that are loaded, in the order of loading.
class Forms
{
public:
  using Maker = std::function<Form*()>;

  // Makes a form known. Without this its page counts as not there.
  static void Register(const QString& name, Maker maker);
  static void UnregisterAll();

  // The form, loaded now if it was not. Throws 364 if the form is not known, and what
  // its loading throws; then it is not loaded.
  static Form& Load(const QString& name);

  // The loaded form, or null.
  [[nodiscard]] static Form* Loaded(const QString& name);
  [[nodiscard]] static std::vector<Form*> AllLoaded();

  // Unloads the form if it is loaded. False if it refuses.
  static bool Unload(const QString& name);

  // For Form alone: takes it out of the loaded ones.
  static void Forget(Form& form);
};
