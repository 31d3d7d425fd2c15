#include "desktop/Desktop.h"

#include <QApplication>

#include "desktop/Dialogs.h"
#include "desktop/SmallWindows.h"

namespace verdalis::desktop {

Desktop::Desktop(const std::filesystem::path& home, const QString& helpFolder)
    : services_(helpFolder), table_(services_.services()), program_(table_, home), binder_(program_.desk) {
  program_.onMainCreated.connect([this](frmMain& window) {
    main_ = std::make_unique<MainWindow>(
        window, binder_, [this](const QString& topic) { services_.showTopic(programText(topic)); });
    endWith(window);
  });
  program_.windows.onCreated.connect([this](Window& window) { showSecondary(window); });
  welcome_.reset(welcomeWindow(program_.welcome, binder_));
  endWith(program_.welcome);
}

Desktop::~Desktop() = default;

void Desktop::endWith(Window& window) {
  // The help viewer and whatever else may still be open goes with the program.
  binder_.alsoWatch(window, [this] {
    if (program_.ended()) QMetaObject::invokeMethod(qApp, &QCoreApplication::quit, Qt::QueuedConnection);
  });
}

void Desktop::showSecondary(Window& window) {
  // The windows belong to the main one and go with it.
  if (auto* updating = dynamic_cast<frmUpdating*>(&window))
    new ProgressWindow(*updating, binder_, main_.get());
  if (auto* note = dynamic_cast<frmHelp*>(&window))
    static_cast<void>(noteWindow(*note, binder_, main_.get()));
  if (auto* options = dynamic_cast<frmOptions*>(&window)) {
    static_cast<void>(optionsWindow(*options, binder_, main_.get()));
  }
  if (auto* notes = dynamic_cast<frmNotes*>(&window)) {
    static_cast<void>(notesWindow(*notes, binder_, main_.get()));
  }
  if (auto* efficiencies = dynamic_cast<frmHelpEff*>(&window)) {
    static_cast<void>(efficiencyWindow(*efficiencies, binder_, main_.get()));
  }
  // From the welcome window the main one is not there yet.
  if (auto* about = dynamic_cast<frmAbout*>(&window)) {
    QWidget* parent = main_ ? static_cast<QWidget*>(main_.get()) : welcome_.get();
    static_cast<void>(aboutWindow(*about, binder_, parent));
  }
}

}  // namespace verdalis::desktop
