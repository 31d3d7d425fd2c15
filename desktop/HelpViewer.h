#pragma once

#include <QMainWindow>

class QAction;
class QLineEdit;
class QTextBrowser;

namespace verdalis::desktop {

/// The help viewer: the topics of a folder of HTML pages, with back, forward, home and search.
class HelpViewer : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpViewer(const QString& folder);

  /// Shows a topic such as "mainInput.htm#TotalAcres", whatever the case of its file name. One that is
  /// missing shows nothing.
  void showTopic(const QString& topic);

 private:
  /// The name of the topic's file as it is written in the folder; empty without one.
  [[nodiscard]] QString fileOf(const QString& topic) const;
  void search();

  QString folder_;
  QTextBrowser* browser_;
  QLineEdit* searchText_;
};

}  // namespace verdalis::desktop
