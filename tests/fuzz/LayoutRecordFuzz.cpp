// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// The proportions that a control keeps in its Tag, on a page of any size: the first byte
// chooses the size, the rest is the Tag.

#include "FuzzApplication.h"
#include "FuzzTarget.h"
#include "controls/ComboBox.h"
#include "controls/Form.h"
#include "controls/Forms.h"
#include "controls/Label.h"
#include "looks/modResize.h"

#include <cstdlib>

namespace {

class Page : public Form
{
public:
  Page() : Form(QStringLiteral("frmFuzz"), Kind::kPage)
  {
    label.setObjectName(QStringLiteral("lblTitle"));
    box.setObjectName(QStringLiteral("cboMonth"));
  }

  Label label{this};
  ComboBox box{this};
};

Page& LoadPage()
{
  Forms::Register(QStringLiteral("frmFuzz"), [] { return new Page; });
  return dynamic_cast<Page&>(Forms::Load(QStringLiteral("frmFuzz")));
}

}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
  static QApplication& application = FuzzApplication();
  static Page& page = LoadPage();
  constexpr std::array<int, 4> kSides = {0, 744, 4096, 16'000'000};
  const std::uint8_t choice = size > 0 ? data[0] : 0;
  page.resize(kSides[choice % kSides.size()], kSides[choice / kSides.size() % kSides.size()]);
  const QString tag = QString::fromUtf8(InputFrom(data, size).mid(1));
  modResize::SetTag(page.label, tag);
  modResize::SetTag(page.box, tag);
  modResize::ResizeControls(page);
  modResize::InitControlsToResize(page);
  modResize::ResizeControls(page);
  application.sendPostedEvents();
  return 0;
}
