#include "main/Program.h"

#include <algorithm>
#include <utility>

#include "controls/ask.h"
#include "text/RunTimeError.h"

namespace verdalis {

Program::Program(Services& services, ProgramFiles files)
    : windows(desk, state, services), welcome(desk, services), services_(services), files_(std::move(files)) {
  desk.onRunTimeError = [this](const RunTimeError& error) { tell(error); };
  welcome.onStart.connect([this] { start(); });
  welcome.onStartWithTrends.connect([this] {
    main().EnableBatch(true);
    start();
  });
  welcome.onAbout.connect([this] { windows.about().open(); });
  welcome.open();
}

frmMain& Program::main() {
  if (!main_) {
    main_ = std::make_unique<frmMain>(desk, services_, state, windows, files_);
    onMainCreated(*main_);
  }
  return *main_;
}

void Program::start() {
  main().touch();
  main().open();
  welcome.close();
}

bool Program::ended() const {
  return std::none_of(desk.windows().begin(), desk.windows().end(),
                      [](const Window* window) { return window->isOpen(); });
}

void Program::tell(const RunTimeError& error) {
  windows.closeUpdating();
  ask(desk, services_.messageBox, {defaultTitle, error.what(), MessageKind::failure, MessageIcon::critical});
}

}  // namespace verdalis
