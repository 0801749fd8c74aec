// SPDX-FileCopyrightText: 2026 The Quillmark authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "controls/Form.h"
#include "controls/Forms.h"
#include "platform/RuntimeError.h"

#include <gtest/gtest.h>

#include <QPointer>
#include <QTest>

namespace {

// Says what happens to it.
class Page : public Form
{
public:
  Page(const QString& name, QStringList& events) : Form(name, Kind::kPage), events_(events) {}

  bool failsToLoad = false;
  bool refusesToUnload = false;
  std::function<void()> whileLoading = [] {};

protected:
  void Form_Load() override
  {
    events_.append(Name() + QStringLiteral(" loads"));
    whileLoading();
    if (failsToLoad) {
      RaiseError(ErrorNumber::kFileNotFound);
    }
  }
  void Form_QueryUnload(bool& cancel) override
  {
    events_.append(Name() + QStringLiteral(" is asked"));
    cancel = refusesToUnload;
  }
  void Form_Unload() override { events_.append(Name() + QStringLiteral(" unloads")); }

private:
  QStringList& events_;
};

class FormsTest : public testing::Test
{
protected:
  ~FormsTest() override
  {
    refusing_.clear();
    for (Form* form : Forms::AllLoaded()) {
      static_cast<Page*>(form)->refusesToUnload = false;
      form->Unload();
    }
    Forms::UnregisterAll();
  }

  void Register(const char* name)
  {
    const QString formName = QString::fromLatin1(name);
    Forms::Register(formName, [this, formName] {
      auto* page = new Page(formName, events_);
      page->failsToLoad = failing_.contains(formName);
      page->refusesToUnload = refusing_.contains(formName);
      if (formName == QStringLiteral("frmIntro")) {
        page->whileLoading = whileIntroLoads_;
      }
      ++made_;
      return page;
    });
  }

  static Form& Load(const char* name) { return Forms::Load(QString::fromLatin1(name)); }

  static int ErrorOfLoad(const char* name)
  {
    try {
      Load(name);
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  }

  static std::string Loaded()
  {
    QStringList names;
    for (const Form* form : Forms::AllLoaded()) {
      names.append(form->Name());
    }
    return names.join(u' ').toStdString();
  }

  std::string Events() const { return events_.join(QStringLiteral(", ")).toStdString(); }

  QStringList events_;
  QStringList failing_;
  QStringList refusing_;
  std::function<void()> whileIntroLoads_ = [] {};
  int made_ = 0;
};

}

TEST_F(FormsTest, FormThatWasNotRegisteredIsNotKnown)
{
  EXPECT_EQ(ErrorOfLoad("frmNew"), 364);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), nullptr);
  Register("frmNew");
  EXPECT_EQ(made_, 0);
  EXPECT_EQ(ErrorOfLoad("frmNew"), 0);
}

TEST_F(FormsTest, UnregisteredFormsAreNoLongerKnown)
{
  Register("frmNew");
  Forms::UnregisterAll();
  EXPECT_EQ(ErrorOfLoad("frmNew"), 364);
}

TEST_F(FormsTest, LoadedFormsStandInTheOrderOfLoading)
{
  for (const char* name : {"frmIntro", "frmNew", "frmSpecial"}) {
    Register(name);
  }
  EXPECT_EQ(Loaded(), "");
  for (const char* name : {"frmSpecial", "frmIntro", "frmNew"}) {
    Load(name);
  }
  EXPECT_EQ(Loaded(), "frmSpecial frmIntro frmNew");
  EXPECT_TRUE(Forms::Unload(QStringLiteral("frmIntro")));
  EXPECT_EQ(Loaded(), "frmSpecial frmNew");
  Load("frmIntro");
  EXPECT_EQ(Loaded(), "frmSpecial frmNew frmIntro");
}

TEST_F(FormsTest, LoadingTwiceGivesTheSameForm)
{
  Register("frmNew");
  Form& first = Load("frmNew");
  EXPECT_EQ(&Load("frmNew"), &first);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), &first);
  EXPECT_EQ(made_, 1);
  EXPECT_EQ(Events(), "frmNew loads");
}

TEST_F(FormsTest, FormCountsAsLoadedWhileItLoads)
{
  std::string loaded;
  Form* reached = nullptr;
  whileIntroLoads_ = [&] {
    loaded = Loaded();
    reached = Forms::Loaded(QStringLiteral("frmIntro"));
  };
  Register("frmIntro");
  Form& form = Load("frmIntro");
  EXPECT_EQ(loaded, "frmIntro");
  EXPECT_EQ(reached, &form);
}

TEST_F(FormsTest, FormThatALoadCallsUpStandsBehindIt)
{
  Register("frmIntro");
  Register("frmTextNotice");
  whileIntroLoads_ = [] { Load("frmTextNotice"); };
  Load("frmIntro");
  EXPECT_EQ(Loaded(), "frmIntro frmTextNotice");
}

TEST_F(FormsTest, FormThatFailsToLoadIsNotLoaded)
{
  Register("frmNew");
  Register("frmSpecial");
  Load("frmSpecial");
  failing_ = {QStringLiteral("frmNew")};
  EXPECT_EQ(ErrorOfLoad("frmNew"), ErrorNumber::kFileNotFound);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), nullptr);
  EXPECT_EQ(Loaded(), "frmSpecial");
  failing_.clear();
  EXPECT_EQ(ErrorOfLoad("frmNew"), 0);
  EXPECT_EQ(Loaded(), "frmSpecial frmNew");
}

TEST_F(FormsTest, FormMayUnloadItselfWhileItLoads)
{
  whileIntroLoads_ = [] { Forms::Unload(QStringLiteral("frmIntro")); };
  Register("frmIntro");
  const QPointer<Form> form = &Load("frmIntro");
  EXPECT_EQ(Loaded(), "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
}

TEST_F(FormsTest, UnloadingAsksTellsAndDeletes)
{
  Register("frmNew");
  const QPointer<Form> form = &Load("frmNew");
  events_.clear();
  EXPECT_TRUE(Forms::Unload(QStringLiteral("frmNew")));
  EXPECT_EQ(Events(), "frmNew is asked, frmNew unloads");
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), nullptr);
  EXPECT_EQ(Loaded(), "");
  EXPECT_TRUE(QTest::qWaitFor([&] { return form.isNull(); }));
}

TEST_F(FormsTest, FormThatRefusesStaysLoaded)
{
  Register("frmNew");
  refusing_ = {QStringLiteral("frmNew")};
  auto& page = static_cast<Page&>(Load("frmNew"));
  events_.clear();
  EXPECT_FALSE(Forms::Unload(QStringLiteral("frmNew")));
  EXPECT_EQ(Events(), "frmNew is asked");
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), &page);
  page.refusesToUnload = false;
  EXPECT_TRUE(Forms::Unload(QStringLiteral("frmNew")));
}

TEST_F(FormsTest, UnloadingWhatIsNotLoadedDoesNothing)
{
  Register("frmNew");
  EXPECT_TRUE(Forms::Unload(QStringLiteral("frmNew")));
  EXPECT_TRUE(Forms::Unload(QStringLiteral("frmAnn")));
  EXPECT_EQ(Events(), "");
  EXPECT_EQ(made_, 0);
}

TEST_F(FormsTest, UnloadedFormCanBeLoadedAnewAtOnce)
{
  Register("frmNew");
  Load("frmNew");
  Forms::Unload(QStringLiteral("frmNew"));
  Form& second = Load("frmNew");
  EXPECT_EQ(made_, 2);
  EXPECT_EQ(Forms::Loaded(QStringLiteral("frmNew")), &second);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(Loaded(), "frmNew");
}
