#ifndef UI_CLIENT_LAUNCHER_PROGRESS_DIALOG_H
#define UI_CLIENT_LAUNCHER_PROGRESS_DIALOG_H

#include <QProgressDialog>
#include <memory>

// The small window that is shown while the per-user installation is replaced: a label and a bar
// from 0 to 100. Threads: the main thread only.
class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

  public:
    ProcessingProgressDialog();

    // Makes the dialog's font the application's, then the dialog: a dialog is laid out before it
    // has its own font, and no second font is loaded when both are the same.
    static std::unique_ptr<ProcessingProgressDialog> Create();
};

#endif
