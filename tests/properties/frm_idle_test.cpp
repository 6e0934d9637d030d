#include "properties/frm_idle.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTest>

#include "test_folder.h"
#include "widgets/dialog_test.h"

namespace starfolds {
namespace {

constexpr int kLongest = 30'000;  // milliseconds

class FrmIdleTest : public DialogTest {
 protected:
  /// A program in place of the service, which writes down that it serves.
  QString Program() {
    QFile script(Place("starfolds-idle"));
    EXPECT_TRUE(script.open(QIODevice::WriteOnly));
    script.write(
        "#!/bin/sh\ncase $1 in\n"
        "--status) echo 'Idleness: <b>found</b>'; echo 'Settings: stored ones' ;;\n"
        "--test) echo 'The screen saver starts.'; exec sleep 100 ;;\n"
        "*) echo served >\"$0.log\" ;;\nesac\n");
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    return script.fileName();
  }
  QString Place(const char* name) const { return QString::fromStdString(Folder.Path(name)); }
  void Open() {
    Dialog = std::make_unique<FrmIdle>(Tree, HelpBook, Program());
    Dialog->ShowInPlace();
  }
  QWidget& Window() override { return *Dialog; }
  QString Text(const char* label) { return The<QLabel>(label).text(); }
  IdleSettings Stored() { return ReadIdleSettings(Tree, {}).value_or(IdleSettings()); }

  TestFolder Folder;
  std::unique_ptr<FrmIdle> Dialog;
};

TEST_F(FrmIdleTest, ShowsWhatTheServiceFindsAndTestsIt) {
  Open();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Text("lblFound").startsWith("Idleness"); }, kLongest));
  EXPECT_EQ(Text("lblFound"), "Idleness: <b>found</b>");
  EXPECT_EQ(The<QLabel>("lblFound").textFormat(), Qt::PlainText);
  const QString begin = The<QPushButton>("cmdTest").text();
  Click("cmdTest");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return Text("lblTest") == "The screen saver starts."; }, kLongest));
  EXPECT_NE(The<QPushButton>("cmdTest").text(), begin);
  Click("cmdTest");
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return The<QPushButton>("cmdTest").text() == begin; }, kLongest));
}

TEST_F(FrmIdleTest, OkStoresAndStartsTheServiceIfItIsOn) {
  Open();
  Edit("txtIdleMinutes").setText("999");
  Click("cmdOK");
  EXPECT_EQ(Stored(), (IdleSettings{false, 240, 20}));
  EXPECT_FALSE(QFile::exists(Place("starfolds-idle.log")));

  Open();
  Check("chkIdleOn").setChecked(true);
  Edit("txtIdleBattery").setText("100");
  Tree.Writable = false;
  Click("cmdOK");
  EXPECT_TRUE(Dialog->isVisible()) << "nothing was stored";
  EXPECT_NE(Text("lblTest"), "");
  Tree.Writable = true;
  Click("cmdOK");
  EXPECT_FALSE(Dialog->isVisible());
  EXPECT_EQ(Stored(), (IdleSettings{true, 240, 100}));
  EXPECT_TRUE(
      QTest::qWaitFor([&] { return QFile::exists(Place("starfolds-idle.log")); }, kLongest));
}

}  // namespace
}  // namespace starfolds
