#include "console/FileOpenDialog.h"

#include <QFileDialog>
#include <QStringList>

using namespace Qt::StringLiterals;

QString toolkitFilter(const QString& filter) {
    const QStringList parts = filter.split(u'|');
    QStringList filters;
    for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
        const QString& description = parts[i];
        const QString& pattern = parts[i + 1];
        const QString bracketed = u" ("_s + pattern + u')';
        filters.append(description.endsWith(bracketed) ? description : description + bracketed);
    }
    return filters.join(u";;"_s);
}

void QtFileOpenDialog::ShowOpen(QWidget* owner) {
    const QString filters = toolkitFilter(Filter);
    const QStringList list = filters.split(u";;"_s);
    QString selected = list.value(FilterIndex - 1);
    const QString start = InitDir.isEmpty() ? FileName : InitDir;
    const QString chosen =
        QFileDialog::getOpenFileName(owner, QString(), start, filters, &selected);
    if (!chosen.isEmpty()) {
        FileName = chosen;
    }
}
