// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QColor>
#include <QPixmap>
#include <QWidget>

#include <vector>

class QEventLoop;

// A window or a page of the program. It is loaded through Forms, which owns it, and
// goes with Unload. Its object name is its class name.
class Form : public QWidget
{
  Q_OBJECT
  Q_PROPERTY(QColor BackColor READ BackColor WRITE SetBackColor)
  Q_PROPERTY(QRect PicturePlace READ PicturePlace WRITE SetPicturePlace)

public:
  enum class Kind
  {
    kPage,    // stands inside the frame, one at a time
    kWindow,  // a window of its own
  };

  ~Form() override;

  [[nodiscard]] Kind FormKind() const { return kind_; }
  [[nodiscard]] QString Name() const { return objectName(); }

  void Show();
  void ShowModal();    // a dialog of the active window; comes back when it is hidden or unloaded
  void ShowTopmost();  // not modal, above all other windows
  void Hide();

  // Takes the form out of the loaded ones and deletes it, also if its own part of that
  // throws. False if it refuses.
  bool Unload();

  // Size of the inner area in twips.
  [[nodiscard]] int ScaleWidth() const;
  [[nodiscard]] int ScaleHeight() const;

  [[nodiscard]] QColor BackColor() const { return backColor_; }
  void SetBackColor(const QColor& color);

  // The form's own picture, drawn as large as its place at the design size lets it, in
  // proportion to the form. Without a place it stands on the right third.
  [[nodiscard]] const QPixmap& Picture() const { return picture_; }
  void SetPicture(const QPixmap& picture);
  [[nodiscard]] QRect PicturePlace() const { return picturePlace_; }
  void SetPicturePlace(const QRect& place);

  // What stands on the form, in the order of its design.
  [[nodiscard]] const std::vector<QWidget*>& Controls() const { return controls_; }

  // A control by name; null if there is none.
  [[nodiscard]] QWidget* Control(const QString& name) const;

  // The elements of a control array by name, from its lowest index on; null for a gap.
  struct Elements
  {
    int lower = 0;
    std::vector<QWidget*> widgets;
  };
  [[nodiscard]] Elements ArrayNamed(const QString& name) const;

protected:
  Form(const QString& name, Kind kind);

  // The page's own part of loading, unloading and resizing.
  virtual void Form_Load() {}
  virtual void Form_QueryUnload(bool& cancel) { static_cast<void>(cancel); }
  virtual void Form_Unload() {}
  virtual void Form_Resize() {}

  // What the close box of the window does; unloads the form unless a form knows better.
  virtual void Form_CloseBox() { Unload(); }

  void closeEvent(QCloseEvent* event) override;
  void hideEvent(QHideEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

private:
  friend class Forms;

  void Load();
  void Open(Qt::WindowModality modality);
  void StandOver(const QWidget* below);

  Kind kind_;
  QColor backColor_ = Qt::white;
  QPixmap picture_;
  QRect picturePlace_;
  QSize designSize_;
  std::vector<QWidget*> controls_;
  QEventLoop* modalLoop_ = nullptr;
  bool loaded_ = false;
};
