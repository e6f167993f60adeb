#include "tests/genericintegration/io/FTemplateComparison.h"

#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FUtf8Output.h"
#include "genericintegration/templates/FTemplateTags.h"

#include <QBuffer>

namespace FTemplateComparison {

Written write(const QString& text, const Table& table, bool force) {
    FTemplateKeys keys;
    for (auto row = table.cbegin(); row != table.cend(); ++row) {
        keys.append(row.key(), row->holdsObject);
    }
    Written written;
    QBuffer buffer(&written.bytes);
    buffer.open(QIODevice::WriteOnly);
    FUtf8Output output(buffer);
    FTemplateSubstitution substitution(
        keys, [&](int row) { return std::next(table.cbegin(), row)->text; },
        [&](QStringView piece) {
            written.text.append(piece.data(), static_cast<int>(piece.size()));
            output.write(piece);
        });
    substitution.setForceWindowsLineEndings(force);
    substitution.setObserver([&](const FTagReport& report) {
        written.reports.push_back(
            {report.outcome, report.name.toString(), report.row, report.position, report.place()});
    });
    substitution.run(text);
    output.finish();
    return written;
}

QString difference(const Written& written, const QString& text, const Table& table, bool force) {
    SlowTemplateModel model;
    model.table = table;
    if (written.text != model.write(text, force)) {
        return "the text is " + written.text;
    }
    if (written.bytes != written.text.left(written.text.indexOf(QChar::Null)).toUtf8()) {
        return "the bytes aren't those of the text up to its first NUL";
    }
    QStringList unknown;
    for (const Report& report : written.reports) {
        if (!text.midRef(static_cast<int>(report.position)).startsWith(u"<entry>", Qt::CaseInsensitive)) {
            return "there is no tag where one is told";
        }
        if (report.outcome == FTagOutcome::Unknown) {
            unknown.append(report.name);
        }
    }
    const bool isUnterminated = !written.reports.empty() && written.reports.back().outcome == FTagOutcome::Unterminated;
    return unknown != model.unknownNames          ? "the unknown tags are " + unknown.join('\n')
           : isUnterminated != model.unterminated ? "an unterminated tag isn't told, or one that is none"
                                                  : QString();
}

QString differenceOfNames(const QString& text, const QString& name) {
    QStringList entryNames = SlowTemplateModel::names(text, Qt::CaseSensitive);
    entryNames.removeDuplicates();
    if (FTemplateTags::entryNames(text) != entryNames) {
        return "the names of entries are " + FTemplateTags::entryNames(text).join('\n');
    }
    if (FTemplateTags::tagNames(text) != SlowTemplateModel::names(text, Qt::CaseInsensitive)) {
        return "the names of tags are " + FTemplateTags::tagNames(text).join('\n');
    }
    const QString renamed = FTemplateTags::renameTag(text, name, "new");
    return renamed == QString(text).replace("<entry>" + name + "</entry>", "<entry>new</entry>", Qt::CaseInsensitive)
               ? QString()
               : "a tag is renamed to " + renamed;
}

}  // namespace FTemplateComparison
