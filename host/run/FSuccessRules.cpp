#include "host/run/FSuccessRules.h"

#include "host/run/FSafePath.h"
#include "host/script/FCmdManager.h"

#include <QDir>

#include <algorithm>

namespace {

QString quoted(const QString& text) {
    return QLatin1Char('"') + text + QLatin1Char('"');
}

}  // namespace

const QString& FSuccessRules::accepts() {
    static const QString word = QStringLiteral("accept");
    return word;
}

const QString& FSuccessRules::warns() {
    static const QString word = QStringLiteral("warn");
    return word;
}

const QString& FSuccessRules::fails() {
    static const QString word = QStringLiteral("fail");
    return word;
}

const QString& FSuccessRules::allValues() {
    static const QString word = QStringLiteral("*");
    return word;
}

bool FSuccessRules::needsNumbers() const {
    return !requiredValues.isEmpty() || suspiciousNumbers == fails() || missingAnchors == fails();
}

bool FSuccessRules::isOptional(const QString& file) const {
    return std::any_of(optionalFiles.begin(), optionalFiles.end(),
                       [&file](const QString& optional) { return QDir::cleanPath(optional) == QDir::cleanPath(file); });
}

QStringList FSuccessRules::withoutOptional(const QStringList& files) const {
    QStringList result;
    std::copy_if(files.begin(), files.end(), std::back_inserter(result),
                 [this](const QString& file) { return !isOptional(file); });
    return result;
}

QStringList FSuccessRules::textFiles() const {
    QStringList files;
    for (const QStringList& rule : requiredTexts + forbiddenTexts) {
        files.append(rule.first());
    }
    files.removeDuplicates();
    return files;
}

QString FSuccessRules::faultOfExitCodes(const QList<int>& codes) {
    if (codes.isEmpty()) {
        return QStringLiteral("the list of allowed exit codes is empty; give at least one, such as [0]");
    }
    const auto wrong = std::find_if(codes.begin(), codes.end(), [](int code) { return code < 0 || code > 255; });
    return wrong == codes.end() ? QString()
                                : QStringLiteral("%1 can't be an exit code; they go from 0 to 255").arg(*wrong);
}

QString FSuccessRules::faultOfTexts(const QList<QStringList>& texts) {
    for (const QStringList& rule : texts) {
        if (rule.size() != 2 || rule.last().isEmpty()) {
            return QStringLiteral("each rule is a list of a file name and a text, such as [\"stdout.txt\", \"DONE\"]");
        }
        const QString fault = faultOfFiles({rule.first()});
        if (!fault.isEmpty()) {
            return fault;
        }
    }
    return {};
}

QString FSuccessRules::faultOfFiles(const QStringList& files) {
    for (const QString& file : files) {
        if (file.isEmpty() || FSafePath::leadsOut(file)) {
            return QStringLiteral("%1 is no file in the folder of the run; give its name relative to that folder")
                .arg(quoted(file));
        }
    }
    return {};
}

QString FSuccessRules::faultOfTreatment(const QString& treatment) {
    const QStringList words{accepts(), warns(), fails()};
    if (words.contains(treatment)) {
        return {};
    }
    return QStringLiteral("%1 is neither \"accept\" nor \"warn\" nor \"fail\"").arg(quoted(treatment)) +
           didYouMean(treatment, words);
}
