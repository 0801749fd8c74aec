// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

// Pages and boxes that are opened and left again and again.

#include "ShellTest.h"

#include "platform/Command.h"
#include "platform/MsgBox.h"
#include "support/Heap.h"

namespace {

constexpr int kWarmUp = 6;
constexpr int kTimes = 20;
// The toolkit keeps the looks of widgets that have gone until their places in memory are given
// out again, which a sanitizer puts off. A page that did not go would be many times as much.
constexpr qint64 kBytesATime = 24'000;

class ComeAndGo : public ShellTest, public testing::WithParamInterface<const char*>
{
protected:
  void Visit(const QString& name) const
  {
    Command::Run([&] { Forms::Load(name).Show(); });
    QCoreApplication::processEvents();
    Command::Run([&] { Forms::Unload(name); });
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
  }

  template <typename Work>
  static qint64 BytesLeftBehind(Work&& work)
  {
    for (int i = 0; i < kWarmUp; ++i) {
      work();
    }
    const qint64 before = Heap::BytesInUse();
    for (int i = 0; i < kTimes; ++i) {
      work();
    }
    return Heap::BytesInUse() - before;
  }
};

}

TEST_P(ComeAndGo, LeavesNothingInTheHeap)
{
  Start();
  EXPECT_LT(BytesLeftBehind([this] { Visit(QLatin1String(GetParam())); }), kTimes * kBytesATime);
}

INSTANTIATE_TEST_SUITE_P(Page, ComeAndGo,
                         testing::Values("frmNew", "frmAnn", "frmQuillmark", "frmSpecial", "frmReminders", "frmCharts"),
                         [](const testing::TestParamInfo<const char*>& page) { return std::string(page.param); });

TEST_F(ShellTest, AMessageThatComesAndGoesLeavesNothingInTheHeap)
{
  Start();
  const auto ask = [this] {
    boxes.Expect(QStringLiteral("Done?"));
    MsgBox(QStringLiteral("Done?"));
  };
  for (int i = 0; i < kWarmUp; ++i) {
    ask();
  }
  const qint64 before = Heap::BytesInUse();
  for (int i = 0; i < kTimes; ++i) {
    ask();
  }
  EXPECT_LT(Heap::BytesInUse() - before, kTimes * kBytesATime);
}
