#include "host/run/FTextCheck.h"

#include "host/core/FFile.h"
#include "host/run/FResultFiles.h"
#include "host/run/FResultText.h"
#include "host/run/FSuccessRules.h"

#include <QFileInfo>

#include <algorithm>
#include <map>
#include <optional>
#include <string>

namespace {

/** The text of a file, or the reason why there is none. */
struct FReadFile {
    std::optional<FResultText> text;
    QString reason;
};

FReadFile readFile(const QString& folder, const QString& name) {
    FReadFile result;
    auto file = std::make_unique<QFile>(folder + name);
    result.reason = FResultFiles::faultOfLinks(folder, name);
    if (result.reason.isEmpty()) {
        result.reason = FFile::openOrdinary(*file, QIODevice::ReadOnly);
    }
    if (result.reason.isEmpty()) {
        result.text = FResultText::fromFile(FFileBytes(std::move(file)));
    }
    return result;
}

/** Number of the line, from 1, of the first place with that text; 0 if there is none. */
qint64 lineOf(const QString& wanted, const FResultText& file) {
    const std::string_view text = file.text();
    const std::string part = wanted.toStdString();
    const std::size_t place = text.find(part);
    return place == std::string_view::npos
               ? 0
               : std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(place), '\n') + 1;
}

class FFiles {
 public:
    FFiles(const FSuccessRules& rules, const QString& folder) : mRules(rules), mFolder(folder) {}

    QString fault(const QStringList& rule, bool isRequired) {
        const QString& name = rule.first();
        const QString& text = rule.last();
        if (mRules.isOptional(name) && !QFileInfo(mFolder + name).isFile()) {
            return {};
        }
        const auto known = mFiles.find(name);
        const FReadFile& file =
            known == mFiles.end() ? mFiles.emplace(name, readFile(mFolder, name)).first->second : known->second;
        if (!file.text) {
            return QStringLiteral("'%1' can't be searched for the text \"%2\": %3.").arg(name, text, file.reason);
        }
        const qint64 line = lineOf(text, *file.text);
        if (isRequired) {
            return line > 0 ? QString()
                            : QStringLiteral("'%1' doesn't contain the required text \"%2\".").arg(name, text);
        }
        return line > 0 ? QStringLiteral("'%1' contains the forbidden text \"%2\" in line %3.")
                              .arg(name, text, QString::number(line))
                        : QString();
    }

 private:
    const FSuccessRules& mRules;
    QString mFolder;
    std::map<QString, FReadFile> mFiles;
};

}  // namespace

QStringList FTextCheck::faults(const FSuccessRules& rules, const QString& folder) {
    FFiles files(rules, folder);
    QStringList faults;
    for (const QStringList& rule : rules.forbiddenTexts) {
        faults.append(files.fault(rule, false));
    }
    for (const QStringList& rule : rules.requiredTexts) {
        faults.append(files.fault(rule, true));
    }
    faults.removeAll(QString());
    return faults;
}
