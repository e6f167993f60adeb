#include "host/gui/panels/FNewObjectMenu.h"

#include "host/core/FManaged.h"
#include "host/core/FObjectManager.h"
#include "host/core/FString.h"
#include "host/core/FUserInterface.h"
#include "host/gui/base/FIcons.h"
#include "host/run/FPathManager.h"
#include "host/script/FCmdInput.h"

#include <QMenu>

#include <vector>

namespace {

struct Row {
    const char* text;  //!< with its access key
    const char* icon;
    const char* name;     //!< of the new object, as far as it is free
    const char* creator;  //!< the command
    const char* filter;   //!< of the files that the object can read; null if it needs none
};

constexpr Row rows[] = {
    {"&Parameter", "parameter", "parameter", "parameter", nullptr},
    {"P&oint", "geometry", "point", "point", nullptr},
    {"&Curve from a file…", "geometry", "curve", "curve", "Points of a curve (*.csv);;All files (*)"},
    {"&Triangles from a file…", "geometry", "triangles", "triangles", "Triangles (*.stl);;All files (*)"},
    {"&Group of geometry", "geometry", "group", "entityGroup", nullptr},
    {"&Feature definition", "geometry", "feature", "featureDefinition", nullptr},
};

/** As a statement of the script language, so that it does what a script does. */
FManaged* execute(const Row& row, const QString& argument) {
    FObjectManager* objects = FObjectManager::instance();
    const QString name = objects->uniqueName(QString::fromLatin1(row.name), nullptr);
    QString statement = QStringLiteral("%1 %2(%3)").arg(QString::fromLatin1(row.creator), name, argument);
    QTextStream stream(&statement);
    FCmdInput input;
    input.readInputString(stream);
    return input.exec() ? objects->find(name) : nullptr;
}

void add(const Row& row, const std::function<void(FManaged*)>& added) {
    QString argument;
    if (row.filter) {
        const QString path = FUserInterface::instance()->askOpenFile(
            QStringLiteral("Select the file"), FPathManager::getProjectDir(), QString::fromUtf8(row.filter));
        if (path.isEmpty()) {
            return;
        }
        argument = FString(path).toExpressionString();
    }
    if (FManaged* object = execute(row, argument)) {
        added(object);
    }
}

struct LibraryRow {
    QString text;
    QString icon;
    FNewObjectMenu::Make make;
};

std::vector<LibraryRow>& libraryRows() {
    static std::vector<LibraryRow> present;
    return present;
}

}  // namespace

void FNewObjectMenu::set(const QString& text, const QString& icon, const Make& make) {
    libraryRows().push_back({text, icon, make});
}

void FNewObjectMenu::append(QMenu& menu, QWidget* window, const Added& added) {
    QMenu* rest = menu.addMenu(FIcons::get(QStringLiteral("list-add")), QStringLiteral("Ne&w"));
    rest->setObjectName(QStringLiteral("newObjectMenu"));
    for (const Row& row : rows) {
        rest->addAction(FIcons::get(QString::fromLatin1(row.icon)), QString::fromUtf8(row.text),
                        [&row, added] { add(row, added); });
    }
    for (const LibraryRow& row : libraryRows()) {
        rest->addAction(FIcons::get(row.icon), row.text, [&row, window, added] { row.make(window, added); });
    }
}
