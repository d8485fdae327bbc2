#pragma once

#include <QString>

class QWidget;

// The window's file-open dialog. Like the control it stands for it keeps its file name from one
// showing to the next: a cancelled dialog leaves the name it had.
class FileOpenDialog {
public:
    virtual ~FileOpenDialog() = default;

    // Filter as "description|pattern|description|pattern...", FilterIndex from 1.
    QString Filter;
    int FilterIndex = 1;
    QString InitDir;
    QString FileName;

    virtual void ShowOpen(QWidget* owner) = 0;
};

// The toolkit's own dialog.
class QtFileOpenDialog : public FileOpenDialog {
public:
    void ShowOpen(QWidget* owner) override;
};

// "description|pattern|..." in the toolkit's form, "description (pattern);;...": a description
// that already ends with its pattern in brackets is taken as it is.
QString toolkitFilter(const QString& filter);
