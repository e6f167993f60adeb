#include "genericintegration/setup/FSetUpParts.h"

#include "host/lodm/FLodmDefinitionParser.h"
#include "host/script/FScriptParser.h"

bool FSetUpPart::hasEnd() const {
    const int lastBegin = text.lastIndexOf(QLatin1Char('\n'), -2) + 1;
    return text.midRef(lastBegin).startsWith(QLatin1String("lastFile : "));
}

QStringList FSetUpPart::declaredNames() const {
    QStringList names;
    const int marker = text.indexOf(FLodmDefinitionParser::smObjectArea);
    if (marker < 0) {
        return names;
    }
    const FScript script =
        parseScript(text.mid(marker + FLodmDefinitionParser::smObjectArea.size()), QString(), {true, true});
    for (const FSyntaxStatement& statement : script.statements) {
        if (const auto* declaration = std::get_if<FSyntaxDeclaration>(&statement.content)) {
            names.append(declaration->name);
        }
    }
    return names;
}

std::vector<FSetUpPart> FSetUpParts::split(const QString& text) {
    std::vector<FSetUpPart> parts(1);
    int line = 1;
    for (int begin = 0; begin < text.size(); ++line) {
        const int end = text.indexOf(QLatin1Char('\n'), begin);
        QStringRef content = text.midRef(begin, end < 0 ? -1 : end - begin);
        if (content.endsWith(QLatin1Char('\r'))) {
            content.chop(1);
        }
        if (content.contains(QLatin1String(FLodmDefinitionParser::xmlHeader))) {
            parts.push_back({QString(), line});
        }
        parts.back().text += content;
        parts.back().text += QLatin1Char('\n');
        begin = end < 0 ? text.size() : end + 1;
    }
    return parts;
}
