// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QProxyStyle>

// The toolkit's Fusion style, but for one icon that every menu bar asks for: the toolkit's own
// is a picture file, for which it loads all kinds of picture readers at the start.
class BaseStyle : public QProxyStyle
{
  Q_OBJECT

public:
  BaseStyle();

  [[nodiscard]] QIcon standardIcon(StandardPixmap standardIcon, const QStyleOption* option,
                                   const QWidget* widget) const override;
};
