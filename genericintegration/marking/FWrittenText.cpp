#include "genericintegration/marking/FWrittenText.h"

#include "genericintegration/io/FTemplateSubstitution.h"
#include "genericintegration/io/FValueTable.h"
#include "genericintegration/marking/FDocumentLineEnd.h"
#include "genericintegration/setup/FDefinitionGenInt.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "host/design/FConfiguration.h"
#include "host/design/FEntry.h"

#include <algorithm>

namespace {

QString withPlainLineEnds(const QString& text) {
    if (std::none_of(text.begin(), text.end(), [](QChar c) { return c != u'\n' && FDocumentLineEnd::isPart(c); })) {
        return text;
    }
    QString plain;
    plain.reserve(text.size());
    for (int place = 0; place < text.size();) {
        const int length = FDocumentLineEnd::lengthAt(text, place);
        plain.append(length > 0 ? QChar(u'\n') : text[place]);
        place += std::max(length, 1);
    }
    return plain;
}

QString valueOf(const FValueTable& table, int row) {
    const FEntry* entry = table.entryOf(row);
    const bool isSafe = !entry || entry->getValue().canSafelyBeUpdated(false);
    return withPlainLineEnds(isSafe ? table.textOf(row) : entry->getValue().toString(nullptr));
}

}  // namespace

FWrittenText FWrittenText::of(const FGenIntFile& file, const FConfiguration& configuration,
                              const FDefinitionGenInt& definition) {
    FWrittenText written;
    const FValueTable table(configuration, definition, FValueTable::Use::Export);
    int before = 0;
    FTemplateSubstitution substitution(
        table.getKeys(), [&table](int row) { return valueOf(table, row); },
        [&](QStringView piece) {
            before = written.text.size();
            written.text.append(piece);
        });
    substitution.setObserver([&](const FTagReport& report) {
        constexpr auto markers = FTemplateTags::openingMarker.size() + FTemplateTags::closingMarker.size();
        if (report.outcome == FTagOutcome::Replaced) {
            written.values.push_back({before, written.text.size() - before});
            written.tags.push_back({static_cast<int>(report.position), static_cast<int>(report.name.size() + markers)});
        }
    });
    substitution.run(withPlainLineEnds(file.getPlainContent()));
    return written;
}
