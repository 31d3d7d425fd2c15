#include <memory>

#include "controls/Grid.h"
#include "tests/controls/Fixture.h"

namespace verdalis {
namespace {

class Tree : public ::verdalis::testing::ControlsFixture {
 protected:
  Frame pane{window, "pneMain"};
  TextBox area{pane, "txtArea"};
  Frame row{pane, "cr(0)", Frame::Scope::named};
  TextBox price{row, "txtPrice"};
  Frame row10{pane, "cr(10)", Frame::Scope::named};
  TextBox price10{row10, "txtPrice"};
  Frame results{window, "theResults", Frame::Scope::named};
  Frame inner{results, "frmInner"};
  Frame record{inner, "rh(0)", Frame::Scope::named};
  Label crop{record, "lblCrop"};
  Window options{desk, "frmOptions"};
  TextBox factor{options, "txtFineFactor"};
};

TEST_F(Tree, FindsAControlByItsPath) {
  EXPECT_EQ(desk.find("txtArea"), &area);
  EXPECT_EQ(desk.find("pneMain"), &pane);
  EXPECT_EQ(desk.find("cr(0)"), &row);
  EXPECT_EQ(desk.find("cr(0).txtPrice"), &price);
  EXPECT_EQ(desk.find("cr(10).txtPrice"), &price10);
  EXPECT_EQ(desk.find("theResults.rh(0).lblCrop"), &crop);
  EXPECT_EQ(desk.find("theResults.frmInner"), &inner);
  EXPECT_EQ(desk.find("frmOptions"), &options);
  EXPECT_EQ(desk.find("frmOptions.txtFineFactor"), &factor);
  EXPECT_EQ(desk.find("frmMain"), &window);
}

TEST_F(Tree, FindsNoControlByAnotherPath) {
  for (const char* path : {"", ".", "txtPrice", "lblCrop", "rh(0).lblCrop", "cr(1)", "cr(0).",
                           "cr(0).txtArea", "txtFineFactor", "frmOptions.", "frmOptions.txtArea",
                           "pneMain.txtArea", "txtarea", "cr(0)txtPrice", "theResults..rh(0)"}) {
    EXPECT_EQ(desk.find(path), nullptr) << path;
  }
}

TEST_F(Tree, EveryControlIsFoundByItsOwnPath) {
  for (const Control* control : std::vector<const Control*>{&pane, &area, &row, &price, &price10, &inner,
                                                            &record, &crop, &options, &factor}) {
    EXPECT_EQ(desk.find(control->path()), control) << control->path();
  }
  EXPECT_EQ(crop.path(), "theResults.rh(0).lblCrop");
  EXPECT_EQ(factor.path(), "frmOptions.txtFineFactor");
  EXPECT_EQ(area.path(), "txtArea");
}

TEST_F(Tree, EveryControlKnowsItsContainerAndWindow) {
  EXPECT_EQ(price.container(), &row);
  EXPECT_EQ(&price.window(), &window);
  EXPECT_EQ(&window.window(), &window);
  EXPECT_EQ(window.container(), nullptr);
  EXPECT_EQ(&crop.desk(), &desk);
  EXPECT_EQ(row.controls(), std::vector<Control*>{&price});
}

TEST_F(Tree, AFrameListsItsControlsInOrderOfCreation) {
  auto passing = std::make_unique<Label>(row, "lblPassing");
  EXPECT_EQ(row.controls(), (std::vector<Control*>{&price, passing.get()}));
  EXPECT_EQ(desk.find("cr(0).lblPassing"), passing.get());
  passing.reset();
  EXPECT_EQ(row.controls(), std::vector<Control*>{&price});
  EXPECT_EQ(desk.find("cr(0).lblPassing"), nullptr);
}

TEST_F(Tree, AControlIsReachableOnlyIfItsContainersAre) {
  EXPECT_TRUE(price.isReachable());
  price.setEnabled(false);
  EXPECT_FALSE(price.isReachable());
  EXPECT_TRUE(price.isShown());
  price.setEnabled(true);
  row.setEnabled(false);
  EXPECT_FALSE(price.isReachable());
  EXPECT_TRUE(price.enabled());
  row.setEnabled(true);
  pane.setVisible(false);
  EXPECT_FALSE(price.isReachable());
  EXPECT_FALSE(price.isShown());
  EXPECT_TRUE(price.visible());
  pane.setVisible(true);
  price.setVisible(false);
  EXPECT_FALSE(price.isReachable());
  EXPECT_FALSE(factor.isReachable());
  options.open();
  EXPECT_TRUE(factor.isReachable());
  options.close();
  EXPECT_FALSE(factor.isReachable());
}

TEST_F(Tree, AViewIsNotifiedOnlyOfRealChanges) {
  price.onStateChange.connect(writes("watcher"));
  price.setEnabled(true);
  price.setVisible(true);
  EXPECT_TRUE(take().empty());
  price.setEnabled(false);
  price.setVisible(false);
  EXPECT_EQ(take(), (Log{"watcher", "watcher"}));
}

}  // namespace
}  // namespace verdalis
