// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QLabel>

// A text that can be clicked. Its back colour shows only while its back style is opaque.
// With the role "command", "month", "choice" or "day" it takes the focus and is pressed by
// Space and Enter, too.
class Label : public QLabel
{
  Q_OBJECT
  Q_PROPERTY(int BackStyle READ BackStyle WRITE SetBackStyle)
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
  Q_PROPERTY(QColor ForeColor READ ForeColor WRITE SetForeColor)
  Q_PROPERTY(QString role READ Role WRITE SetRole)

public:
  static constexpr int kTransparent = 0;
  static constexpr int kOpaque = 1;

  explicit Label(QWidget* parent = nullptr);

  [[nodiscard]] int BackStyle() const { return backStyle_; }
  void SetBackStyle(int style);
  [[nodiscard]] QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);
  // The page's text colour for the label's role, until one is set.
  [[nodiscard]] QColor ForeColor() const;
  void SetForeColor(const QColor& color);
  [[nodiscard]] bool FontUnderline() const { return font().underline(); }
  void SetFontUnderline(bool underline);

  [[nodiscard]] QString Role() const { return role_; }
  void SetRole(const QString& role);
  [[nodiscard]] bool IsCommand() const;

  // How far from the edge the caption begins. Blanks around a caption are not painted, save
  // in details, which are shown as they are.
  [[nodiscard]] int TextInset() const;

Q_SIGNALS:
  void Click();

protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

private:
  void PaintText(QPainter& painter) const;

  int backStyle_ = kTransparent;
  QColor backColor_ = Qt::white;
  QColor foreColor_;
  QString role_;
  bool pressed_ = false;
  bool showsFocus_ = false;
};
