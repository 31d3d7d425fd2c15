#include "desktop/Desktop.h"

#include <QApplication>
#include <QEventLoopLocker>

#include "desktop/Dialogs.h"
#include "desktop/Habits.h"
#include "desktop/SmallWindows.h"

namespace verdalis::desktop {

namespace {

/// Milliseconds from a change to the recovery copy with it: less than a second, and many keys together.
constexpr int copyAfter = 800;

/// Milliseconds from a change to the hints about it: too short to be noticed, and behind the key that is
/// painted.
constexpr int hintsAfter = 30;

}  // namespace

Desktop::Desktop(const ProgramFiles& files, const QString& helpFolder,
                 const std::optional<std::filesystem::path>& farm)
    : services_(helpFolder), table_(services_.services()), program_(table_, files), binder_(program_.desk) {
  services_.background().waitFor(program_.desk);
  settling_.setSingleShot(true);
  settling_.setInterval(hintsAfter);
  connect(&settling_, &QTimer::timeout, this, [this] { program_.desk.settle(); });
  program_.desk.settleLater = [this] { settling_.start(); };
  program_.onMainCreated.connect([this](frmMain& window) {
    main_ = std::make_unique<MainWindow>(
        window, binder_, [this](const QString& topic) { services_.showTopic(programText(topic)); });
    endWith(window);
    keepCopies(window);
  });
  program_.windows.onCreated.connect([this](Window& window) { showSecondary(window); });
  connect(
      qApp, &QGuiApplication::commitDataRequest, this, [this] { endSession(); }, Qt::DirectConnection);
  qApp->installEventFilter(new Habits(this));
  if (farm) {
    // In the event loop, because the start may show a message.
    QTimer::singleShot(0, this, [this, path = *farm] { openAtStart(path); });
  } else {
    showWelcome();
  }
}

Desktop::~Desktop() = default;

void Desktop::showWelcome() {
  welcome_.reset(welcomeWindow(program_.welcome, binder_));
  endWith(program_.welcome);
}

void Desktop::openAtStart(const std::filesystem::path& farm) {
  const QEventLoopLocker
      running;  // a message closed before the main window is there does not end the program
  program_.welcome.Command1.click();
  if (main_ && main_->isVisible()) {
    main_->openFarm(farm);
  } else {
    showWelcome();
  }
}

void Desktop::keepCopies(frmMain& window) {
  copying_.setSingleShot(true);
  copying_.setInterval(copyAfter);
  connect(&copying_, &QTimer::timeout, this, [&window] { window.farms.recover(); });
  changes_ = window.keeper.onChange.connectScoped([this] {
    if (!copying_.isActive()) copying_.start();
  });
}

void Desktop::endSession() {
  if (program_.hasMain()) program_.main().farms.recover();
  qApp->installEventFilter(this);
}

bool Desktop::eventFilter(QObject* object, QEvent* event) {
  // By default the windows are closed one by one, and each may ask and stay.
  if (object == qApp && event->type() == QEvent::Quit && !program_.ended()) {
    if (program_.hasMain()) program_.main().farms.recover();
    QCoreApplication::exit();
    return true;
  }
  return QObject::eventFilter(object, event);
}

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
