// The launcher's only window: the progress of preparing the user's copy.
#pragma once

#include <QProgressDialog>

class ProcessingProgressDialog : public QProgressDialog {
    Q_OBJECT

public:
    // Built hidden: value 0 of 0..100, the "initializing" label, 400 pixels
    // wide, window-modal. Needs the application object and the string table.
    ProcessingProgressDialog();
};
