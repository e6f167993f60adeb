#include "tests/genericintegration/binding/FRandomCommands.h"

#include "host/core/FDocuArea.h"
#include "host/core/FObjectManager.h"
#include "host/core/FPrototypes.h"
#include "host/core/FQuotedText.h"
#include "host/script/FCmdManager.h"

#include <algorithm>

namespace {

const QStringList entryPaths{"a", "b", "n", "n[2]", "G", "G|b", "G|b[1]", "G|H|c", "Ü x", "Part"};
const QStringList entryNames{"a", "b", "c", "H", "Ü x", "q\"\\", "a|b"};
const QStringList fileNames{"in.txt", "sub/ä.txt", "out.dat", ""};
const QStringList texts{"",
                        "x",
                        "\"q\" \\ \\n",
                        "line\r\nline\n\ttab",
                        "ä€😀",
                        "[B64]",
                        "[B64]YSDDpA==",
                        "<entry>a</entry> <entry>g|B</entry>\n<entry>in.txt</entry> <entry>G|H|c</entry>",
                        "[,;]",
                        "First",
                        "FDouble",
                        "}\n\nthing x() {",
                        "\uFEFF",
                        "C:\\new\\\r",
                        QString("null") + QChar(0) + "byte"};

bool isOffered(const FCmdRow& row, const FClassData& data) {
    const auto rows = FCmdManager::instance()->findMembers(data, row.name);
    return std::find(rows.begin(), rows.end(), &row) != rows.end();
}

/** Whether a statement of the script can reach the row. */
bool isReachable(const FCmdRow& row) {
    const auto& rows = FCmdManager::instance()->getRows();
    return !row.isMember() || std::any_of(rows.begin(), rows.end(), [&row](const FCmdRow* creator) {
        return creator->isCreator() && isOffered(row, *creator->owner);
    });
}

bool takesRest(const FCmdRow& row) {
    return std::any_of(row.arguments.begin(), row.arguments.end(),
                       [](const FCmdArgument& argument) { return argument.type.takesRest; });
}

QString listText(const QStringList& elements) {
    return '[' + elements.join(", ") + ']';
}

}  // namespace

std::vector<const FCmdRow*> FRandomCommands::getActingRows() {
    std::vector<const FCmdRow*> acting;
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        // What takes any arguments prints.
        if (!row->isQuery() && !row->isUnwrapped && !takesRest(*row) && isReachable(*row)) {
            acting.push_back(row);
        }
    }
    return acting;
}

FRandomCommands::FRandomCommands(quint32 seed, const QStringList& files) : mRandom(seed), mFiles(files) {
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        if (chance(50)) {
            mFavoured.insert(row);
        }
    }
}

void FRandomCommands::favourRest(const QSet<const FCmdRow*>& executed) {
    mFavoured.clear();
    for (const FCmdRow* row : getActingRows()) {
        if (!executed.contains(row)) {
            mFavoured.insert(row);
        }
    }
}

const FCmdRow* FRandomCommands::pickRow(const std::vector<const FCmdRow*>& rows,
                                        const std::function<bool(const FCmdRow&)>& fits) {
    std::vector<const FCmdRow*> fitting;
    std::copy_if(rows.begin(), rows.end(), std::back_inserter(fitting),
                 [&fits](const FCmdRow* row) { return fits(*row); });
    const auto isFavoured = [this](const FCmdRow* row) { return mFavoured.contains(row); };
    const auto end = std::partition(fitting.begin(), fitting.end(), isFavoured);
    const auto count = end == fitting.begin() ? fitting.size() : static_cast<std::size_t>(end - fitting.begin());
    return fitting.empty() ? nullptr : fitting[static_cast<std::size_t>(pick(static_cast<int>(count)))];
}

QStringList FRandomCommands::receivers(const FCmdRow& row) const {
    QStringList names;
    for (const FManaged* object : FObjectManager::instance()->getManaged(row.owner->mpNull)) {
        if (isOffered(row, object->getClassData())) {
            names.append(object->getName());
        }
    }
    return names;
}

QString FRandomCommands::statement() {
    const std::vector<const FCmdRow*> rows = getActingRows();
    const int kind = pick(100);
    if (kind < 2) {
        mpLastRow = nullptr;
        return pick(QStringList{"r = t5.getResults()", "k = t5.getResults().getTable(\"out.dat\")"});
    }
    const bool creates = kind < 15;
    const FCmdRow* row = pickRow(rows, [&](const FCmdRow& candidate) {
        return creates     ? candidate.isCreator()
               : kind < 27 ? candidate.kind == FCmdRow::Kind::Global
                           : candidate.isMember() && !receivers(candidate).isEmpty();
    });
    mpLastRow = row ? row : pickRow(rows, [](const FCmdRow& candidate) { return candidate.isCreator(); });
    if (mpLastRow->isCreator()) {
        return creation(*mpLastRow, false);
    }
    if (!mpLastRow->isMember()) {
        return call(*mpLastRow, 0);
    }
    const QStringList names = receivers(*mpLastRow);
    const QString command = '.' + call(*mpLastRow, 0);
    const QStringList several{pick(names), pick(names)};
    if (chance(85)) {
        return several.front() + command;
    }
    mpLastRow = nullptr;
    return chance(50) ? listText(several) + command : "for (o in " + listText(several) + ") { o" + command + " }";
}

QString FRandomCommands::interruptedStatement() {
    const QStringList calls{
        "t5.run()",  "t5.cancel()",   "t5.rereadResults()", "include(" + quoteText(mFiles.last()) + ')',
        "t2.save()", "[destroy(t6)]", "t4.setValue(t4 + 1)"};
    QStringList given;
    for (int i = 1 + pick(3); i > 0; --i) {
        const FCmdRow* row = pickRow(getActingRows(), [this](const FCmdRow& candidate) {
            return candidate.isMember() && !receivers(candidate).isEmpty();
        });
        given.append(!row || chance(60) ? pick(calls) : pick(receivers(*row)) + '.' + call(*row, 0));
    }
    return pick(QStringList{"print(%1)", "x = [%1]", "[%1]", "if (true) { [%1] }"}).arg(given.join(", "));
}

QString FRandomCommands::failingStatement() {
    const FCmdRow* creator = pickRow(getActingRows(), [](const FCmdRow& row) { return row.isCreator(); });
    return creation(*creator, true);
}

QString FRandomCommands::creation(const FCmdRow& row, bool fails) {
    QString text = row.name + QStringLiteral(" t%1(").arg(pick(9)) + call(row, 0).section('(', 1);
    QStringList lines;
    const int count = fails || chance(40) ? 1 + pick(3) : 0;
    for (int i = 0; i < count; ++i) {
        const FCmdRow* member = pickRow(getActingRows(), [&row](const FCmdRow& candidate) {
            return candidate.isMember() && isOffered(candidate, *row.owner);
        });
        if (member) {
            lines.append('.' + call(*member, 0));
        }
    }
    if (fails) {
        lines.append(".noSuchCommand()");
    }
    return text + " {\n" + lines.join('\n') + "\n}";
}

void FRandomCommands::editObject() {
    const auto objects = FObjectManager::instance()->getManaged(FManaged::null());
    if (objects.isEmpty()) {
        return;
    }
    FManaged* edited = objects[pick(objects.size())];
    edited->setName(chance(50) ? objects[pick(objects.size())]->getName() : QString("n%1größe長さ").arg(pick(9)));
    edited->addDocu(pick(texts), static_cast<unsigned>(pick(3)));
    edited->setInProject(chance(70));
    edited->setInUserConfig(chance(20));
}

QString FRandomCommands::call(const FCmdRow& row, int depth) {
    QStringList given;
    for (const FCmdArgument& next : row.arguments) {
        if (next.byDefault.isEmpty() || chance(60)) {
            given.append(argument(next, depth));
        } else {
            break;
        }
    }
    return row.name + '(' + given.join(", ") + ')';
}

QString FRandomCommands::argument(const FCmdArgument& argument, int depth) {
    const FCmdType& type = argument.type;
    if (chance(3)) {
        return value(depth + 1);
    }
    if (type.script == "string") {
        return quoteText(text(argument.name));
    }
    if (type.script == "bool") {
        return chance(50) ? "true" : "false";
    }
    if (type.cls->getName() == "FInteger" || type.script == "unsigned" || type.script == "double") {
        return number();
    }
    if (const auto* enumeration = dynamic_cast<const FEnumBase*>(type.cls->mpNull)) {
        return pick(enumeration->getStringValues());
    }
    if (type.cls->getName() == "FObjectList") {
        return listArgument(type, depth);
    }
    return type.cls == &FObject::mClass ? value(depth) : object(type.cls->mpNull);
}

QString FRandomCommands::listOf(int most, const std::function<QString()>& element) {
    QStringList elements;
    for (int i = pick(most + 1); i > 0; --i) {
        elements.append(element());
    }
    return listText(elements);
}

QString FRandomCommands::listArgument(const FCmdType& type, int depth) {
    if (type.script == "stringContainer") {
        return listOf(3, [this] { return quoteText(text("content")); });
    }
    if (type.script == "intContainer") {
        return listOf(3, [this] { return QString::number(pick(4)); });
    }
    if (type.isHandle) {
        // What is written as a list of lists: a record of names, numbers and places.
        return listOf(3, [&] {
            const QStringList record{quoteText(text("path")),
                                     number(),
                                     number(),
                                     quoteText(text("content")),
                                     "First",
                                     "\"FDouble\"",
                                     "\"\"",
                                     "1",
                                     value(depth + 1)};
            return listText(record.mid(0, chance(70) ? 9 : 7));
        });
    }
    const FObject* elements = FPrototypes::find(QString(type.script).remove("Container"));
    return listOf(4, [&] { return object(elements); });
}

QString FRandomCommands::object(const FObject* type) {
    const QList<FManaged*> objects = FObjectManager::instance()->getManaged(type);
    return objects.isEmpty() || chance(10) ? "NULL" : objects[pick(objects.size())]->getName();
}

QString FRandomCommands::text(const QString& argumentName) {
    if (argumentName.startsWith("path")) {
        return pick(entryPaths);
    }
    if (argumentName == "newName") {
        return pick(entryNames);
    }
    if (argumentName == "treatment") {
        return pick(QStringList{"accept", "warn", "fail"});
    }
    if (argumentName == "area") {
        return pick(FEnum<FDocuArea>().getStringValues());
    }
    if (argumentName.startsWith("type") || argumentName == "class") {
        return pick(QStringList{"FDouble", "FString", "FInputFile", ""});
    }
    return pick(argumentName.contains("file", Qt::CaseInsensitive) ? fileNames + mFiles : texts);
}

QString FRandomCommands::number() {
    return pick(QStringList{"0", "1", "1", "2", "3", "10", "0.1", "-1", "-7.5", "1e300"});
}

QString FRandomCommands::value(int depth) {
    const int kind = depth > 2 ? pick(3) : pick(10);
    switch (kind) {
        case 0:
            return number();
        case 1:
            return quoteText(pick(texts));
        case 2:
            return pick(QStringList{"true", "NULL", "[]", "2"});
        case 3:
            return object(FManaged::null());
        case 4:
            return object(FPrototypes::find("FParameter"));
        case 5:
            return object(FPrototypes::find("FParameter")) + pick(QStringList{" + ", " * ", " / "}) + value(depth + 1);
        case 6:
            return listOf(2, [&] { return value(depth + 1); });
        case 7:
            return pick(QStringList{"t5.getResults()", "r"}) + ".getDataAt(" + pick(QStringList{"\"v1\"", "0"}) +
                   ", 0)";
        case 8:
            return "k.getElementAt(0)";
        default:
            return query(depth + 1);
    }
}

QString FRandomCommands::query(int depth) {
    const bool ofObject = chance(50);
    const FCmdRow* row = pickRow(FCmdManager::instance()->getRows(), [&](const FCmdRow& candidate) {
        return candidate.effect == FCmdRow::Effect::Pure && !candidate.isCreator() && !takesRest(candidate) &&
               candidate.hasResult() &&
               (candidate.isMember() ? ofObject && !receivers(candidate).isEmpty() : !ofObject);
    });
    if (!row) {
        return number();
    }
    return (ofObject ? pick(receivers(*row)) + '.' : QString()) + call(*row, depth);
}
