#pragma once

#include <QTextBrowser>

namespace tarnwick {

/// Looks a help file up where the program's files can be: next to the program, as the build leaves it, or
/// where it is installed. Empty when it is nowhere.
QString find_help(const QString& file_name);

/// Shows a help file (HTML). Its images are the program's own drawings, <img src="art:faces/hearts-queen">,
/// and empty places with their signs, <img src="sign:king">.
class HelpWindow : public QTextBrowser {
  public:
    HelpWindow();

    /// Shows the file and brings the window to the front; false when the file cannot be read.
    bool show_file(const QString& path);

  protected:
    QVariant loadResource(int type, const QUrl& name) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void fit_to_screen();

    QString path_;
};

}  // namespace tarnwick
