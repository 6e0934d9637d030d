// The editors of a body behind the properties dialog.
#include <gtest/gtest.h>

#include "body_editors/frm_levels.h"
#include "body_editors/frm_user_def_ifs.h"
#include "properties/props_dialog.h"

namespace starfolds {
namespace {

constexpr int kOfLevels = 4;
constexpr int kOfPoints = 39;

class EditedBodiesTest : public FrmPropsTest {
 protected:
  std::string Box(const char* name) { return Edit(name).text().toStdString(); }

  StarfoldProfile AcceptedType(int type) {
    Click("cmdAccept");
    Click("cmdAccept");
    return LoadSettings(Tree).Profiles[type];
  }
};

void Put(QWidget& editor, const char* box, const char* text) {
  Part<QLineEdit>(editor, box).setText(text);
}
void Push(QWidget& editor, const char* button) { Part<QPushButton>(editor, button).click(); }

TEST_F(EditedBodiesTest, OkGoesToThePageAndWithItToTheTree) {
  StoreFactory();
  Open();
  Enter("txtUni_0", "250");
  OpenType(kOfLevels);
  Enter("txtStarfold_0", "4321");
  WhenShown<FrmLevels>([](FrmLevels& editor) {
    EXPECT_EQ(Part<QLineEdit>(editor, "txtStarfold_0").text(), "4321") << "as the page shows it";
    Put(editor, "txtLevel_0", "4");
    Put(editor, "txtLevel_1", "450");
    Put(editor, "txtStarfold_1", "2222");
    Push(editor, "cmdOK");
  });
  Click("cmdFoldLevels");
  EXPECT_EQ(Box("txtStarfold_9"), "4");
  EXPECT_EQ(Box("txtStarfold_2"), "2222");
  Enter("txtStarfold_2", "1111");  // the page has the last word
  const StarfoldProfile body = AcceptedType(kOfLevels);
  EXPECT_EQ(body.Starfold_StdLevels, 4);
  EXPECT_EQ(body.Starfold_StdLevDRad, 450);
  EXPECT_EQ(body.Starfold_Distance, 1111);
}

TEST_F(EditedBodiesTest, QuittingEndsThePreviewOfAnEditor) {
  StoreFactory();
  Open();
  OpenType(kOfPoints);
  WhenShown<FrmUserDefIfs>([&](FrmUserDefIfs& editor) {
    Events.Pumps = 0;
    Events.Plan = {{5, [&] {
                      Process->Requests.AskQuit();
                      editor.close();
                      Dialog->close();
                    }}};
    Push(editor, "cmdPreview");
    EXPECT_LE(Events.Pumps, 6);
    EXPECT_FALSE(editor.isVisible());
  });
  Click("cmdIFS_Chem");
  EXPECT_EQ(Events.Pumps, 5);
  EXPECT_FALSE(Dialog->IsOpen());
}

}  // namespace
}  // namespace starfolds
