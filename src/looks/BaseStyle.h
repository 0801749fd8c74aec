// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

// The toolkit's Fusion style, but for two things. The icon that every menu bar asks for is a
// picture file there, for which the toolkit loads all kinds of picture readers at the start. And
// lists of boxes are no pop-up menus, of which every line would be measured before they open.
class BaseStyle : public QProxyStyle
{
  Q_OBJECT

public:
  BaseStyle();

  [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                   const QWidget* widget) const override;
  [[nodiscard]] int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                              QStyleHintReturn* returned) const override;
};
