#include "host/gui/panels/FEntryTypes.h"

#include "host/core/FObject.h"

const std::vector<FEntryTypes::Type>& FEntryTypes::choices() {
    static const std::vector<Type> all{{"FDouble", "number", "0"},
                                       {"FString", "text", "\"\""},
                                       {"FBool", "truth value", "false"},
                                       {"FInputFile", "input file", "inputFile(\"\")"},
                                       {"FResultsFileName", "result file", "resultsFileName(\"results.dat\")"}};
    return all;
}

QString FEntryTypes::wordFor(const FObject* type) {
    if (!type) {
        return QStringLiteral("group");
    }
    for (const Type& known : choices()) {
        if (type->getClass() == QLatin1String(known.className)) {
            return QString::fromLatin1(known.word);
        }
    }
    return type->getClass() == QLatin1String("FGeometryExport") ? QStringLiteral("geometry") : type->getClass();
}
