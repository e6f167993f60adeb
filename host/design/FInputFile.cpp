#include "host/design/FInputFile.h"

#include "host/script/FCmdTable.h"

namespace {

void commands(FCmdTable& table) {
    table
        .global("inputFile",
                +[](const FKeptExpression& fileName, const FKeptExpression& saveDirectory) {
                    return FExpr<FInputFile>(new FInputFile(fileName.orEmpty(), saveDirectory.orEmpty()));
                },
                {"fileName", "saveDirectory=NULL"})
        .query();
}

bool isSeparator(QChar c) {
    return c == QLatin1Char('/') || c == QLatin1Char('\\');
}

QString withoutFolders(const QString& path) {
    return path.mid(std::max(path.lastIndexOf(QLatin1Char('/')), path.lastIndexOf(QLatin1Char('\\'))) + 1);
}

}  // namespace

FClassData FInputFile::mClass("FInputFile", &FFileReference::mClass, &commands, &FInputFile::fields);

FInputFile::FInputFile(const FExprBase& fileName, const FExprBase& saveDirectory) : FClass(fileName) {
    setSaveDirectory(saveDirectory);
}

std::vector<std::unique_ptr<FStateField>> FInputFile::fields() {
    return FStateFields<FInputFile>().linked(&FInputFile::mSaveDirectory).take();
}

QString FInputFile::toPlainString() const {
    QString folder = textOf(mSaveDirectory);
    if (!folder.isEmpty() && !isSeparator(folder.back())) {
        folder += QLatin1Char('/');
    }
    return folder + withoutFolders(getFileNameText());
}

QString FInputFile::toExpressionString() const {
    const QString folder = mSaveDirectory.isEmpty() ? QString() : QLatin1Char(',') + mSaveDirectory.toHistoryString();
    return QStringLiteral("inputFile(") + getFileName().toHistoryString() + folder + QLatin1Char(')');
}
