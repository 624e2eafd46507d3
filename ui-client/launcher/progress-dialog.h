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

    // Sets the application's font family to the dialog's, then creates the dialog. A dialog is laid
    // out before it gets its own font: with two families, two fonts would be loaded.
    static std::unique_ptr<ProcessingProgressDialog> Create();
};

#endif
