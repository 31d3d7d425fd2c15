#include <QComboBox>
#include <QDialogButtonBox>
#include <QDropEvent>
#include <QLineEdit>
#include <QMimeData>
#include <QPlainTextEdit>
#include <QUrl>
#include <array>

#include "data/farmFile.h"
#include "tests/desktop/RunningDesktop.h"

namespace verdalis::testing {
namespace {

/// Tests the farm files in the window: their menus, the title, undo and redo, the notes, and the question
/// before changes are lost.
class FarmMenus : public RunningDesktop {
 protected:
  FarmMenus() {
    remembers = true;
    restart();
  }

  [[nodiscard]] MainMenus& menus() { return program().main().menus; }
  [[nodiscard]] FarmFiles& farms() { return program().main().farms; }
  [[nodiscard]] QAction* action(const Control& entry) { return desktop().binder().action(entry); }
  [[nodiscard]] std::string title() { return window()->windowTitle().toStdString(); }
  [[nodiscard]] std::string text(const std::string& path) {
    return widget<QLineEdit>(path)->text().toStdString();
  }

  /// A caption as the user reads it.
  [[nodiscard]] std::string shown(const Control& entry) {
    return action(entry)->text().remove(QLatin1Char('&')).toStdString();
  }

  void enter(const std::string& path) {
    widget(path)->setFocus(Qt::TabFocusReason);
    QTest::qWait(0);
  }

  /// Presses a key where the focus is.
  void key(Qt::Key wanted, Qt::KeyboardModifiers with = Qt::NoModifier) {
    QTest::keyClick(window()->focusWidget(), wanted, with);
    QTest::qWait(0);
  }
  void undoKey() { key(Qt::Key_Z, Qt::ControlModifier); }
  void redoKey() { key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }

  /// Saves the farm on screen as a new file.
  std::filesystem::path saveAs(const std::string& name) {
    const std::filesystem::path path = home() / name;
    expectChooser(desktop::qText(path.string()));
    action(menus().mnuSaveAs)->trigger();
    EXPECT_TRUE(std::filesystem::exists(path)) << path;
    return path;
  }

  /// Runs a check on the next message box, which must close it.
  void expectBoxThat(const std::function<void(QMessageBox&)>& check) {
    QTimer::singleShot(0, qApp, [this, check] { checkBox(check, 100); });
  }

  int checked = 0;

 private:
  void checkBox(const std::function<void(QMessageBox&)>& check, int tries) {
    auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (box != nullptr && box->isVisible()) {
      ++checked;
      check(*box);
    } else if (tries > 0) {
      QTimer::singleShot(10, qApp, [this, check, tries] { checkBox(check, tries - 1); });
    }
  }
};

TEST_F(FarmMenus, EntriesHaveTheirKeys) {
  start();
  const auto expectKey = [&](const Control& entry, const char* keys) {
    EXPECT_EQ(action(entry)->shortcut(), QKeySequence(QString::fromLatin1(keys))) << entry.path();
  };
  expectKey(menus().mnuNew, "Ctrl+N");
  expectKey(menus().mnuOpen, "Ctrl+O");
  expectKey(menus().mnuSave, "Ctrl+S");
  expectKey(menus().mnuSaveAs, "Ctrl+Shift+S");
  expectKey(menus().mnuUndo, "Ctrl+Z");
  expectKey(menus().mnuRedo, "Ctrl+Shift+Z");
}

TEST_F(FarmMenus, TheMenusShowTheirEntriesInOrder) {
  start();
  const auto entries = [](QMenu* menu) {
    QStringList texts;
    for (const QAction* entry : menu->actions())
      texts << (entry->isSeparator() ? QStringLiteral("-") : entry->text().remove(QLatin1Char('&')));
    return texts.join(QLatin1Char('|')).toStdString();
  };
  EXPECT_EQ(entries(widget<QMenu>("mnuTools(0)")),
            "New|Open...|Open Recent|-|Save|Save As...|-|Farm Name and Notes...|-|Print|Report...|-|Exit");
  EXPECT_EQ(entries(widget<QMenu>("mnuTools(1)")), "Undo|Redo|-|Options");
}

TEST_F(FarmMenus, UndoAndRedoNameTheirStep) {
  start();
  EXPECT_FALSE(action(menus().mnuUndo)->isEnabled());
  EXPECT_FALSE(action(menus().mnuRedo)->isEnabled());
  EXPECT_EQ(shown(menus().mnuUndo), "Undo");
  type("txtArea", "100");
  enter("txtMax");
  ASSERT_TRUE(action(menus().mnuUndo)->isEnabled());
  const std::string name = program().main().keeper.toUndo()->name;
  EXPECT_EQ(shown(menus().mnuUndo), "Undo " + name);
  EXPECT_EQ(QKeySequence::mnemonic(action(menus().mnuUndo)->text()), QKeySequence(QStringLiteral("Alt+U")));
  choose(menus().mnuUndo);
  EXPECT_EQ(text("txtArea"), "");
  EXPECT_EQ(shown(menus().mnuUndo), "Undo");
  EXPECT_EQ(shown(menus().mnuRedo), "Redo " + name);
  choose(menus().mnuRedo);
  EXPECT_EQ(text("txtArea"), "100");
}

TEST_F(FarmMenus, InAChangedFieldTheKeysAreItsOwn) {
  start();
  type("txtArea", "100");
  type("txtMax", "12");
  for (int i = 0; i < 4 && !text("txtMax").empty(); ++i)
    undoKey();
  EXPECT_EQ(text("txtMax"), "");
  EXPECT_EQ(text("txtArea"), "100");
  EXPECT_TRUE(widget("txtMax")->hasFocus());
  for (int i = 0; i < 4 && text("txtMax") != "12"; ++i)
    redoKey();
  EXPECT_EQ(text("txtMax"), "12");
  EXPECT_EQ(program().main().pneMain.txtMax.text(), "12") << "the program follows the field";
}

TEST_F(FarmMenus, AFieldWithoutAChangeLeavesTheKeysToTheMenu) {
  start();
  type("txtArea", "100");
  type("txtMax", "12");
  enter("txtArea");
  undoKey();
  EXPECT_EQ(text("txtArea"), "100");
  EXPECT_EQ(text("txtMax"), "");
  EXPECT_TRUE(widget("txtArea")->hasFocus());
  undoKey();
  EXPECT_EQ(text("txtArea"), "");
  redoKey();
  redoKey();
  EXPECT_EQ(text("txtArea"), "100");
  EXPECT_EQ(text("txtMax"), "12");
}

TEST_F(FarmMenus, WhenAFieldHasUndoneEverythingTheMenuGoesOn) {
  start();
  type("txtArea", "100");
  type("txtMax", "12");
  for (int i = 0; i < 4 && !text("txtMax").empty(); ++i)
    undoKey();
  undoKey();
  EXPECT_EQ(text("txtArea"), "");
}

TEST_F(FarmMenus, AnEditableListUndoesLikeAField) {
  start();
  type("txtArea", "100");
  type("txtAnnRain", "16");
  auto* rain = widget<QComboBox>("txtAnnRain");
  const QString before = rain->currentText();
  ASSERT_EQ(before, QStringLiteral("16"));
  for (int i = 0; i < 4 && rain->currentText() == before; ++i)
    undoKey();
  EXPECT_NE(rain->currentText(), before);
  EXPECT_EQ(text("txtArea"), "100");
  enter("txtMax");
  enter("txtAnnRain");
  while (action(menus().mnuUndo)->isEnabled())
    undoKey();
  EXPECT_EQ(text("txtArea"), "");
}

TEST_F(FarmMenus, OutsideAFieldTheKeysUndoClicks) {
  start();
  tick("cr(1).chkCrop");
  enter("cr(1).chkCrop");
  undoKey();
  EXPECT_FALSE(program().main().pneMain.cr[1]->isActive());
  redoKey();
  EXPECT_TRUE(program().main().pneMain.cr[1]->isActive());
}

TEST_F(FarmMenus, TheEditMenuOffersToUndoWhatIsBeingTyped) {
  start();
  type("txtArea", "100");
  choose(menus().mnuUndo);
  EXPECT_EQ(text("txtArea"), "");
}

TEST_F(FarmMenus, UndoLeadsToThePaneAndAFieldOfIt) {
  start();
  typeFarm();
  press("cr(1).cmdInputCosts");
  type("txtTillage", "40");
  press("Command6");
  ASSERT_EQ(pane(), "pneMain");
  enter("txtArea");
  undoKey();
  ASSERT_EQ(pane(), "pneInputCosts");
  const QWidget* focus = window()->focusWidget();
  ASSERT_NE(focus, nullptr);
  EXPECT_TRUE(widget("pneInputCosts")->isAncestorOf(focus)) << focus->objectName().toStdString();
  EXPECT_TRUE(focus->isVisible());
  EXPECT_TRUE(focus->isEnabled());
}

TEST_F(FarmMenus, TheFocusStaysOnThePaneWhenItsControlGoes) {
  start();
  tick("cr(1).chkCrop");
  enter("cr(1).txtPrice");
  action(menus().mnuUndo)->trigger();
  ASSERT_TRUE(comes([&] {
    const QWidget* focus = window()->focusWidget();
    return focus != nullptr && focus->isEnabled() && focus->isVisible();
  }));
  const std::filesystem::path farm = saveAs("a.verdalis");
  enter("cr(1).chkCrop");
  expectChooser(desktop::qText(farm.string()));
  action(menus().mnuOpen)->trigger();
  QTest::qWait(0);
  ASSERT_NE(window()->focusWidget(), nullptr);
  EXPECT_TRUE(widget("pneMain")->isAncestorOf(window()->focusWidget()));
}

TEST_F(FarmMenus, TheTitleFollowsEachKey) {
  start();
  EXPECT_EQ(title(), "Verdalis");
  enter("txtArea");
  QTest::keyClick(widget("txtArea"), Qt::Key_5);
  EXPECT_EQ(title(), "Verdalis*");
  QTest::keyClick(widget("txtArea"), Qt::Key_Backspace);
  EXPECT_EQ(title(), "Verdalis");
  QTest::keyClick(widget("txtArea"), Qt::Key_5);
  saveAs("river.verdalis");
  EXPECT_EQ(title(), "river - Verdalis");
  enter("txtMax");
  QTest::keyClick(widget("txtMax"), Qt::Key_7);
  EXPECT_EQ(title(), "river* - Verdalis");
  undoKey();
  EXPECT_EQ(title(), "river - Verdalis");
}

TEST_F(FarmMenus, ANameThatLooksLikeAMarkIsShownAsItIs) {
  start();
  program().main().setCaption("Farm [*] 1 - Verdalis");
  // The toolkit's way to write a mark that is none.
  EXPECT_EQ(title(), "Farm [*][*] 1 - Verdalis");
}

TEST_F(FarmMenus, TheNotesAreTypedAndApplied) {
  start();
  choose(menus().mnuNotes);
  QWidget* dialog = widget("frmNotes");
  ASSERT_TRUE(dialog->isVisible());
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  EXPECT_EQ(dialog->focusWidget(), widget("frmNotes.txtFarmName"));
  const auto typeHere = [&](const char* text) {
    QTest::keyClicks(dialog->focusWidget(), QString::fromUtf8(text));
  };
  typeHere("Home Place");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(dialog->focusWidget(), widget("frmNotes.txtNotes"));
  typeHere("Well 3 pumps sand.");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  typeHere("Ask about the corner.");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(dialog->focusWidget(), widget("frmNotes.txtLetterhead"));
  typeHere("Valley Advice");
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(comes([&] { return !dialog->isVisible(); }));
  const FarmDocument& farm = program().main().keeper.document();
  EXPECT_EQ(farm.name, "Home Place");
  EXPECT_EQ(farm.notes, "Well 3 pumps sand.\nAsk about the corner.");
  EXPECT_EQ(farm.letterhead, "Valley Advice");
  EXPECT_EQ(title(), "Home Place* - Verdalis");
  window()->activateWindow();
  QTest::qWait(0);
  undoKey();
  EXPECT_EQ(program().main().keeper.document().notes, "");
}

TEST_F(FarmMenus, EscapeLeavesTheNotesAsTheyWere) {
  start();
  choose(menus().mnuNotes);
  QWidget* dialog = widget("frmNotes");
  ASSERT_TRUE(QTest::qWaitForWindowActive(dialog));
  QTest::keyClicks(dialog->focusWidget(), QStringLiteral("Wrong"));
  QTest::keyClick(dialog->focusWidget(), Qt::Key_Escape);
  ASSERT_TRUE(comes([&] { return !dialog->isVisible(); }));
  EXPECT_EQ(program().main().keeper.document().name, "");
  EXPECT_EQ(title(), "Verdalis");
  choose(menus().mnuNotes);
  EXPECT_EQ(text("frmNotes.txtFarmName"), "");
  EXPECT_EQ(dialog->focusWidget(), widget("frmNotes.txtFarmName"));
}

TEST_F(FarmMenus, NotesThatAProgramSetHaveAllTheirLines) {
  start();
  program().windows.notes().show({"A", "one\ntwo\n", "B"});
  auto* notes = widget<QPlainTextEdit>("frmNotes.txtNotes");
  EXPECT_EQ(notes->toPlainText(), QStringLiteral("one\ntwo\n"));
  EXPECT_EQ(notes->document()->blockCount(), 3);
}

TEST_F(FarmMenus, AFarmFileOfTheCommandLineOpensWithoutTheWelcomeWindow) {
  start();
  type("txtArea", "320");
  const std::filesystem::path farm = saveAs("river.verdalis");
  restart(farm);
  ASSERT_TRUE(comes([&] { return window() != nullptr && farms().path().has_value(); }));
  EXPECT_TRUE(window()->isVisible());
  EXPECT_EQ(widget("frmWelcome"), nullptr);
  EXPECT_FALSE(program().welcome.isOpen());
  EXPECT_EQ(text("txtArea"), "320");
  EXPECT_EQ(title(), "river - Verdalis");
  EXPECT_NE(window()->focusWidget(), nullptr);
}

TEST_F(FarmMenus, AFileThatIsNoFarmLeavesTheProgramOpen) {
  expectBox();
  restart(home() / "missing.verdalis");
  ASSERT_TRUE(comes([&] { return boxes.size() == 1; }));
  EXPECT_TRUE(boxes[0].starts_with("Farm not opened|")) << boxes[0];
  EXPECT_TRUE(comes([&] { return window()->isVisible(); }));
  EXPECT_EQ(title(), "Verdalis");
}

/// Drags files to the middle of a widget.
class Drop : public FarmMenus {
 protected:
  void drag(const std::vector<std::filesystem::path>& files) {
    QList<QUrl> urls;
    for (const auto& file : files)
      urls << QUrl::fromLocalFile(desktop::qText(file.string()));
    data_.setUrls(urls);
  }

  bool enters(QWidget* target) {
    QDragEnterEvent event(target->rect().center(), Qt::CopyAction, &data_, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
    return event.isAccepted();
  }

  void drop(QWidget* target) {
    QDropEvent event(target->rect().center(), Qt::CopyAction, &data_, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(target, &event);
    QTest::qWait(0);
  }

  QMimeData data_;
};

TEST_F(Drop, AFarmFileIsOpened) {
  start();
  type("txtArea", "320");
  const std::filesystem::path farm = saveAs("river.verdalis");
  const std::filesystem::path second = saveAs("hill.verdalis");
  drag({home() / "inputs.txt", farm, second});
  ASSERT_TRUE(enters(window()));
  drop(window());
  ASSERT_TRUE(comes([&] { return farms().path() == farm; })) << "the first farm among the files";
  EXPECT_EQ(title(), "river - Verdalis");
}

TEST_F(Drop, AFarmFileOnAFieldIsNoText) {
  start();
  type("txtArea", "320");
  const std::filesystem::path farm = saveAs("river.verdalis");
  action(menus().mnuNew)->trigger();
  QTest::qWait(0);
  for (const char* field : {"txtArea", "txtAnnRain"}) {
    drag({farm});
    QWidget* target = widget(field);
    ASSERT_TRUE(enters(target)) << field;
    drop(target);
    ASSERT_TRUE(comes([&] { return farms().path() == farm; })) << field;
    EXPECT_EQ(text("txtArea"), "320");
  }
}

TEST_F(Drop, OtherFilesAndOtherHostsAreRefused) {
  start();
  drag({home() / "inputs.txt"});
  EXPECT_FALSE(enters(window()));
  data_.setUrls({QUrl(QStringLiteral("https://example.org/a.verdalis"))});
  EXPECT_FALSE(enters(window()));
}

TEST_F(Drop, NothingIsOpenedDuringARun) {
  start();
  const std::filesystem::path farm = saveAs("river.verdalis");
  typeFarm();
  drag({farm});
  program().windows.updating();
  auto& bar = control<ProgressBar>("frmUpdating.ProgressBar");
  int refused = 0;
  desktop().binder().alsoWatch(bar, [&] {
    if (bar.value() != 3) return;
    refused += enters(window()) ? 0 : 1;
    desktop().mainWindow()->openFarm(farm);  // dropped before the run, and delivered only now
  });
  press("Command1");
  EXPECT_EQ(refused, 1);
  EXPECT_EQ(pane(), "pneResults");
  EXPECT_EQ(program().main().pneMain.txtArea.text(), "100");
}

/// A farm file with an unsaved change.
class Closing : public FarmMenus {
 protected:
  void change() {
    start();
    type("txtArea", "320");
    farm = saveAs("river.verdalis");
    before = stampOf(readFarmFile(farm).text);
    type("txtArea", "160");
  }
  [[nodiscard]] bool isWritten() const { return readFarmFile(farm).stamp != before; }

  std::filesystem::path farm;
  FileStamp before;
};

TEST_F(Closing, SaveWritesTheFarmAndCloses) {
  change();
  expectAnswer(QMessageBox::Save);
  EXPECT_TRUE(window()->close());
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_EQ(boxes[0], "Verdalis|Do you want to save the changes to \"river\"?");
  EXPECT_TRUE(isWritten());
  EXPECT_TRUE(program().ended());
}

TEST_F(Closing, DiscardClosesWithoutWriting) {
  change();
  expectAnswer(QMessageBox::Discard);
  choose(menus().mnuExit);
  EXPECT_FALSE(isWritten());
  EXPECT_TRUE(program().ended());
  EXPECT_FALSE(window()->isVisible());
}

TEST_F(Closing, CancelKeepsTheWindowAndTheChange) {
  change();
  expectAnswer(QMessageBox::Cancel);
  EXPECT_FALSE(window()->close());
  EXPECT_TRUE(window()->isVisible());
  EXPECT_FALSE(isWritten());
  EXPECT_EQ(text("txtArea"), "160");
  EXPECT_EQ(title(), "river* - Verdalis");
}

TEST_F(Closing, TheQuestionHasItsButtonsInOrder) {
  change();
  expectBoxThat([](QMessageBox& box) {
    const auto place = [&](QMessageBox::StandardButton button) {
      return box.button(button)->mapTo(&box, QPoint()).x();
    };
    EXPECT_LT(place(QMessageBox::Save), place(QMessageBox::Discard));
    EXPECT_LT(place(QMessageBox::Discard), place(QMessageBox::Cancel));
    EXPECT_EQ(box.defaultButton(), box.button(QMessageBox::Save));
    EXPECT_EQ(box.escapeButton(), box.button(QMessageBox::Cancel));
    QTest::keyClick(&box, Qt::Key_Escape);
  });
  EXPECT_FALSE(window()->close());
  EXPECT_EQ(checked, 1);
  EXPECT_FALSE(isWritten());
}

TEST_F(Closing, WithoutChangesNothingIsAsked) {
  start();
  type("txtArea", "320");
  saveAs("river.verdalis");
  EXPECT_TRUE(window()->close());
  EXPECT_TRUE(boxes.empty());
  EXPECT_TRUE(program().ended());
}

TEST_F(FarmMenus, RecentFarmsAreInTheirMenu) {
  start();
  auto* menu = widget<QMenu>("mnuOpenRecent");
  EXPECT_FALSE(menu->menuAction()->isEnabled());
  type("txtArea", "320");
  const std::filesystem::path first = saveAs("river.verdalis");
  const std::filesystem::path folder = home() / std::string(120, 'x');
  std::filesystem::create_directory(folder);
  const std::filesystem::path second = saveAs((folder.filename() / "R&D.verdalis").string());
  EXPECT_TRUE(menu->menuAction()->isEnabled());
  const QList<QAction*> entries = menu->actions();
  ASSERT_EQ(entries.size(), 9);
  EXPECT_TRUE(entries[0]->isVisible());
  EXPECT_TRUE(entries[1]->isVisible());
  EXPECT_FALSE(entries[2]->isVisible());
  EXPECT_EQ(entries[0]->toolTip().toStdString(), second.string());
  EXPECT_TRUE(entries[0]->text().startsWith(QLatin1String("&1 "))) << entries[0]->text().toStdString();
  EXPECT_TRUE(entries[0]->text().endsWith(QLatin1String("R&&D.verdalis")));
  EXPECT_TRUE(entries[0]->text().contains(QChar(0x2026))) << "shortened";
  EXPECT_EQ(entries[1]->text().toStdString(), "&2 " + first.string());
  entries[1]->trigger();
  EXPECT_EQ(farms().path(), first);
  std::filesystem::remove(second);
  expectBox();
  entries[1]->trigger();
  ASSERT_EQ(boxes.size(), 1U);
  EXPECT_TRUE(boxes[0].starts_with("Farm not found|")) << boxes[0];
  EXPECT_FALSE(entries[1]->isVisible());
}

TEST_F(FarmMenus, AFarmThatAnotherProgramHasOpenedAppearsInTheMenu) {
  start();
  const auto other = anotherDesktop();
  other->program().welcome.Command1.click();
  saveAs("river.verdalis");
  auto* menu = qobject_cast<QMenu*>(other->binder().widget(other->program().main().menus.mnuFile));
  auto* recent = qobject_cast<QMenu*>(other->binder().widget(other->program().main().menus.mnuOpenRecent));
  EXPECT_FALSE(recent->menuAction()->isEnabled());
  menu->popup({});
  EXPECT_TRUE(recent->menuAction()->isEnabled());
  menu->close();
}

}  // namespace
}  // namespace verdalis::testing
