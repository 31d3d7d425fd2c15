#pragma once

#include <QMainWindow>

class QAction;
class QLineEdit;
class QTextBrowser;

namespace verdalis::desktop {

/// The help viewer: shows the topics in a folder of HTML pages, with back, forward, home and search.
class HelpViewer : public QMainWindow {
  Q_OBJECT

 public:
  explicit HelpViewer(const QString& folder);

  /// Shows a topic such as "mainInput.htm#TotalAcres"; the case of the file name is ignored. Does nothing if
  /// the topic is missing.
  void showTopic(const QString& topic);

 private:
  /// The file name of a topic as spelled in the folder; empty if there is none.
  [[nodiscard]] QString fileOf(const QString& topic) const;
  void search();

  QString folder_;
  QTextBrowser* browser_;
  QLineEdit* searchText_;
};

}  // namespace verdalis::desktop
