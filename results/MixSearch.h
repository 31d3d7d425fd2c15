#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "controls/services.h"
#include "engine/Farm.h"
#include "model/FieldCollection.h"

namespace verdalis {

/// Finds the best plan of each mix of crops beside the actions of the user. It is a search of its own: a mix
/// may be missing among the options of a run, which are the best plans whatever their mix.
class MixSearch {
 public:
  using Option = std::shared_ptr<FieldCollection>;

  /// Takes the plans, best first; none if the search failed.
  using Done = std::function<void(const std::vector<Option>& plans)>;

  explicit MixSearch(BackgroundService& background) : background_(background) {}
  MixSearch(const MixSearch&) = delete;
  MixSearch& operator=(const MixSearch&) = delete;
  ~MixSearch() { cancel(); }

  /// Searches the farm, and then calls `done` unless the search was cancelled. A search that is under way is
  /// cancelled.
  void start(const Farm& farm, Done done);

  /// Ends the search that is under way; it tells nothing any more.
  void cancel();

  [[nodiscard]] bool isRunning() const { return job_ != nullptr; }

 private:
  struct Job;

  BackgroundService& background_;
  std::shared_ptr<Job> job_;  ///< Shared with the work; nullptr if none is under way
};

}  // namespace verdalis
