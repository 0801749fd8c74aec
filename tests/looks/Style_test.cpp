// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "looks/Style.h"

#include "controls/ComboBox.h"
#include "controls/Label.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>
#include <QMap>
#include <QRegularExpression>
#include <QStyleOptionComboBox>

#include <cmath>

namespace {

class StyleTest : public testing::Test
{
protected:
  StyleTest() { Style::Apply(*qApp); }

  static void Play(Label& label, const char* role)
  {
    label.SetRole(QString::fromLatin1(role));
    label.ensurePolished();
  }
};

double Luminance(const QColor& color)
{
  const auto part = [](double value) {
    return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double Contrast(const QColor& text, const QColor& ground)
{
  const double a = Luminance(text);
  const double b = Luminance(ground);
  return (std::max(a, b) + 0.05) / (std::min(a, b) + 0.05);
}

}

TEST_F(StyleTest, RolesHaveTheirFonts)
{
  struct Case
  {
    const char* role;
    const char* family;
    bool bold;
  };
  const std::vector<Case> cases = {
      {"program", "Times New Roman", false},
      {"title", "Times New Roman", false},
      {"heading", "Arial", true},
      {"command", "Arial", false},
      {"", "Arial", false},
  };
  for (const Case& c : cases) {
    Label label;
    Play(label, c.role);
    EXPECT_EQ(label.font().family().toStdString(), c.family) << c.role;
    EXPECT_EQ(label.font().bold(), c.bold) << c.role;
  }
}

TEST_F(StyleTest, SizesOfTheRoles)
{
  for (const auto& [role, size] : {std::pair{"command", 11}, std::pair{"heading", 10}, std::pair{"", 10}}) {
    Label label;
    Play(label, role);
    EXPECT_EQ(label.font().pointSize(), size) << role;
  }
  Label title;
  Play(title, "title");
  EXPECT_GE(title.font().pointSize(), 22);
  EXPECT_LE(title.font().pointSize(), 30);
}

TEST_F(StyleTest, TextColourOfARoleHoldsUntilAnotherIsSet)
{
  const QColor brown(0x80, 0x40, 0x00);
  for (const auto& [role, color] : {std::pair{"title", brown}, std::pair{"heading", brown},
                                    std::pair{"command", QColor(Qt::black)}, std::pair{"", QColor(Qt::black)}}) {
    Label label;
    Play(label, role);
    EXPECT_EQ(label.ForeColor(), color) << role;
    label.SetForeColor(Qt::blue);
    EXPECT_EQ(label.ForeColor(), QColor(Qt::blue)) << role;
  }
}

TEST_F(StyleTest, ColourThatIsSetIsThePaintedOne)
{
  for (const char* role : {"program", "title", "command", ""}) {
    Label label;
    Play(label, role);
    label.setText(QStringLiteral("HHHHHH"));
    label.resize(300, 60);
    label.SetForeColor(Qt::blue);
    const QImage image = label.grab().toImage();
    int blue = 0;
    int reddish = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        const QColor pixel = image.pixelColor(x, y);
        blue += pixel.blue() > pixel.red() + 100 ? 1 : 0;
        reddish += pixel.red() > pixel.blue() + 100 ? 1 : 0;
      }
    }
    EXPECT_GT(blue, 20) << role;
    EXPECT_EQ(reddish, 0) << role;
  }
}

TEST_F(StyleTest, EveryRoleIsReadableOnBothBackgrounds)
{
  for (const char* role : {"program", "motto", "title", "small-title", "heading", "caption", "details", "month",
                           "choice", "weekday", "command", "sentence", ""}) {
    Label label;
    Play(label, role);
    for (const QColor& ground : {QColor(Qt::white), QColor(0xFF, 0xF9, 0xE9)}) {
      EXPECT_GE(Contrast(label.ForeColor(), ground), 4.5) << role << " on " << ground.name().toStdString();
    }
  }
}

TEST_F(StyleTest, TextIsReadableOnEveryGroundThatTheSheetGivesIt)
{
  QFile file(QStringLiteral(":/looks/quillmark.qss"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QString sheet = QString::fromUtf8(file.readAll());
  static const QRegularExpression rules(QStringLiteral("([^{}]+)\\{([^}]*)\\}"));
  static const QRegularExpression colors(
      QStringLiteral("(?:^|[;\\s])(selection-)?(color|background(?:-color)?):\\s*([#\\w]+);"));
  int pairs = 0;
  for (const QRegularExpressionMatch& rule : rules.globalMatch(sheet)) {
    QMap<QString, QColor> found;
    for (const QRegularExpressionMatch& color : colors.globalMatch(rule.captured(2))) {
      found[color.captured(1) + color.captured(2).left(5)] = QColor(color.captured(3));
    }
    for (const char* kind : {"", "selection-"}) {
      const QColor text = found.value(QLatin1String(kind) + QStringLiteral("color"));
      const QColor ground = found.value(QLatin1String(kind) + QStringLiteral("backg"));
      if (text.isValid() && ground.isValid() && ground.alpha() == 255) {
        EXPECT_GE(Contrast(text, ground), 4.5) << rule.captured(1).trimmed().toStdString() << " " << kind;
        ++pairs;
      }
    }
  }
  EXPECT_GE(pairs, 10);
}

TEST_F(StyleTest, HintInAnEmptyBoxIsReadable)
{
  EXPECT_GE(Contrast(qApp->palette().color(QPalette::PlaceholderText), Qt::white), 4.5);
}

TEST_F(StyleTest, DisabledCommandIsPaintedPaler)
{
  Label label;
  Play(label, "command");
  label.setText(QStringLiteral("HHHHHH"));
  label.resize(120, 30);
  const auto ink = [&] {
    const QImage image = label.grab().toImage();
    double least = 1;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        least = std::min(least, Luminance(image.pixelColor(x, y)));
      }
    }
    return least;
  };
  const double enabled = ink();
  label.setEnabled(false);
  EXPECT_GT(ink(), enabled + 0.1);
}

TEST_F(StyleTest, ListsOfBoxesAreNoPopUpMenus)
{
  ComboBox box;
  QStyleOptionComboBox option;
  EXPECT_EQ(box.style()->styleHint(QStyle::SH_ComboBox_Popup, &option, &box), 0);
}

TEST_F(StyleTest, AMenuBarHasAnIconForWhatDoesNotFit)
{
  EXPECT_FALSE(QApplication::style()->standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton).isNull());
}
