// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QMap>
#include <QRect>
#include <QString>
#include <QStringList>
#include <QXmlStreamReader>

#include <memory>
#include <stdexcept>
#include <vector>

// What a .ui file says of one widget.
struct Widget
{
  QString kind;
  QString name;
  QRect place;
  bool hasPlace = false;
  QMap<QString, QString> properties;
  std::vector<std::unique_ptr<Widget>> children;

  [[nodiscard]] QString Property(const char* property) const { return properties.value(QString::fromLatin1(property)); }
  [[nodiscard]] bool IsCommand() const
  {
    const QStringList roles{"command", "month", "choice", "day"};
    return roles.contains(Property("role"));
  }
};

// What a .ui file says of a form.
struct Design
{
  std::unique_ptr<Widget> form;
  QStringList actions;
  QStringList tabStops;
};

// Reads the design of a form from its .ui file.
class DesignReader
{
public:
  explicit DesignReader(const QByteArray& ui) : xml_(ui) {}

  Design Read()
  {
    Design design;
    while (!xml_.atEnd()) {
      xml_.readNext();
      if (Starts("widget")) {
        design.form = ReadWidget(design.actions);
      } else if (Starts("tabstop")) {
        design.tabStops.append(xml_.readElementText());
      }
    }
    if (xml_.hasError()) {
      throw std::runtime_error(xml_.errorString().toStdString());
    }
    return design;
  }

private:
  [[nodiscard]] bool Starts(const char* element) const
  {
    return xml_.isStartElement() && xml_.name() == QLatin1String(element);
  }
  [[nodiscard]] bool Ends(const char* element) const
  {
    return xml_.isEndElement() && xml_.name() == QLatin1String(element);
  }
  [[nodiscard]] QString Attribute(const char* name) const
  {
    return xml_.attributes().value(QLatin1String(name)).toString();
  }

  std::unique_ptr<Widget> ReadWidget(QStringList& actions)
  {
    auto widget = std::make_unique<Widget>();
    widget->kind = Attribute("class");
    widget->name = Attribute("name");
    while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::Invalid && !Ends("widget")) {
      if (Starts("widget")) {
        widget->children.push_back(ReadWidget(actions));
      } else if (Starts("action")) {
        actions.append(Attribute("name"));
        xml_.skipCurrentElement();
      } else if (Starts("property")) {
        ReadProperty(*widget);
      }
    }
    return widget;
  }

  void ReadProperty(Widget& widget)
  {
    const QString name = Attribute("name");
    if (name != QStringLiteral("geometry")) {
      widget.properties[name] = xml_.readElementText(QXmlStreamReader::IncludeChildElements);
      return;
    }
    widget.hasPlace = true;
    QMap<QString, int> numbers;
    while (!xml_.atEnd() && xml_.readNext() != QXmlStreamReader::Invalid && !Ends("property")) {
      if (xml_.isStartElement() && xml_.name() != QLatin1String("rect")) {
        const QString side = xml_.name().toString();
        numbers[side] = xml_.readElementText().toInt();
      }
    }
    widget.place = QRect(numbers[QStringLiteral("x")], numbers[QStringLiteral("y")], numbers[QStringLiteral("width")],
                         numbers[QStringLiteral("height")]);
  }

  QXmlStreamReader xml_;
};
