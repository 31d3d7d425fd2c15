#pragma once

#include <functional>
#include <optional>
#include <set>
#include <string>

#include "controls/Control.h"
#include "controls/Event.h"
#include "document/FarmControls.h"
#include "document/UndoHistory.h"

namespace verdalis {

/// Follows what the user does and keeps the document, its steps and whether it has unsaved changes.
///
/// Each action that changes the document is a step. The keys typed in a field are one step together, which
/// ends when the user leaves the field or does something else. Some actions change what nobody entered (a run
/// writes seeding rates back; opening a pane empties fields with "0"): they are no steps, and make no unsaved
/// change.
class DocumentKeeper {
 public:
  DocumentKeeper(Desk& desk, FarmControls& controls);
  DocumentKeeper(const DocumentKeeper&) = delete;
  DocumentKeeper& operator=(const DocumentKeeper&) = delete;

  /// Begins to follow. The present state of the controls has no steps and counts as saved.
  void start();

  /// The same with a document that has just been put into the controls. `saved` is what a file holds.
  void start(const FarmDocument& document);

  /// The present document.
  [[nodiscard]] const FarmDocument& document() const { return *now_; }
  [[nodiscard]] const SharedDocument& shared() const { return now_; }

  /// Changes the parts of the document that have no control, as one step.
  void change(const std::function<void(FarmDocument&)>& edit);

  /// Whether the document differs from the one that was saved last.
  [[nodiscard]] bool isChanged() const { return changed_; }

  /// The present document has been saved.
  void markSaved();

  /// Nothing is saved: the document counts as changed, whatever it is. After a restored recovery copy.
  void markUnsaved();

  /// Puts another document into the controls, as one step.
  void replace(const FarmDocument& document, const std::string& name);

  /// The step that undo() and redo() would take back or repeat; nullptr if there is none, or none at present.
  [[nodiscard]] const UndoStep* toUndo() const;
  [[nodiscard]] const UndoStep* toRedo() const;

  /// The names of these steps; nothing without one. What is being typed in a field counts as a step.
  [[nodiscard]] std::optional<std::string> undoName() const;
  [[nodiscard]] std::optional<std::string> redoName() const;

  /// Takes back the last step. A field that is being typed in is taken as left first.
  /// \returns the step; its place is empty if there was none.
  std::optional<UndoStep> undo();
  std::optional<UndoStep> redo();

  /// The last step; nullptr if there is none. It changes with each step.
  [[nodiscard]] const UndoStep* lastStep() const { return history_.toUndo(); }

  [[nodiscard]] std::size_t stepCount() const { return history_.size(); }

  /// Actions with this control make no step, whatever they change.
  void ignore(const Control& control) { ignored_.insert(&control); }

  /// Actions with controls of this name make no step.
  void ignore(const std::string& name) { ignoredNames_.insert(name); }

  /// Whether something is entered that is no step yet, because a field is being typed in.
  [[nodiscard]] bool isPending() const { return now_ != committed_ && !ignoring_; }

  /// Whether what is being typed changes the farm, its plant or its crops.
  [[nodiscard]] bool isTypingInputs() const;

  /// Takes what is being typed as a step now.
  void finishTyping();

  /// The document, its steps or its unsaved mark have changed.
  Event<> onChange;

  /// A step has been added.
  Event<const UndoStep&> onStep;

 private:
  void acting(Control& control);
  void acted();
  void refresh();
  [[nodiscard]] UndoStep pendingStep() const;
  void commit(const std::string& name = {});
  void adopt();
  [[nodiscard]] bool isTypingIn(const Control* control) const;
  [[nodiscard]] bool isAvailable(const UndoStep* step) const;
  void put(const SharedDocument& document);
  void told();

  Desk& desk_;
  FarmControls& controls_;
  UndoHistory history_;
  SharedDocument now_;        ///< As entered
  SharedDocument committed_;  ///< After the last step
  SharedDocument saved_;      ///< nullptr if nothing is saved
  bool started_ = false;
  bool changed_ = false;
  bool ignoring_ = false;           ///< The present action makes no step
  const Control* actor_ = nullptr;  ///< Of the present or last action; only compared, never used
  std::string actorName_;           ///< Names a step that changes several things
  std::set<const Control*> ignored_;
  std::set<std::string> ignoredNames_;
};

}  // namespace verdalis
