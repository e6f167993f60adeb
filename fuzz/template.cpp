// Any text as a template, and any keys: it is written as the slow model of the tests does it.
// The input: rows of the table, "key=text" or "key" for one without an object, an empty line, the template.
#include "fuzz/support/FFuzzCheck.h"
#include "genericintegration/io/FTemplateKeys.h"
#include "genericintegration/io/FTemplateSubstitution.h"
#include "genericintegration/io/FUtf8Output.h"
#include "genericintegration/templates/FTemplateTags.h"
#include "tests/genericintegration/io/SlowTemplateModel.h"

#include <QBuffer>

#include <cstddef>
#include <cstdint>

namespace {

using Table = QMap<QString, SlowTemplateModel::Row>;

/// The model takes time quadratic in these.
constexpr int mostRows = 50;
constexpr int longestForModel = 4096;

Table tableOf(const QString& head) {
    Table table;
    const QStringList lines = head.split('\n');
    for (const QString& line : lines.mid(0, mostRows)) {
        const int sign = line.indexOf('=');
        table.insert(line.left(sign), {sign < 0 ? QString() : line.mid(sign + 1), sign >= 0});
    }
    return table;
}

struct Written {
    QString text;
    QByteArray bytes;
    QStringList unknownNames;
    bool isUnterminated = false;
};

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
        if (report.outcome == FTagOutcome::Unknown) {
            written.unknownNames.append(report.name);
        }
        written.isUnterminated = report.outcome == FTagOutcome::Unterminated;
    });
    substitution.run(text);
    FFuzzCheck::holds(output.finish(), "a buffer takes all bytes");
    return written;
}

void compareWithModel(const QString& text, const Table& table, bool force, const Written& written) {
    SlowTemplateModel model;
    model.table = table;
    FFuzzCheck::same(model.write(text, force), written.text, "the text is the model's");
    FFuzzCheck::same(model.unknownNames.join('\n'), written.unknownNames.join('\n'), "unknown tags are the model's");
    FFuzzCheck::holds(model.unterminated == written.isUnterminated, "an unterminated tag is told");
    const QByteArray bytes = written.text.left(written.text.indexOf(QChar::Null)).toUtf8();
    FFuzzCheck::holds(bytes == written.bytes, "the bytes are those of the text up to its first NUL");
}

void compareNames(const QString& text, const QString& name) {
    QStringList entryNames = SlowTemplateModel::names(text, Qt::CaseSensitive);
    entryNames.removeDuplicates();
    FFuzzCheck::holds(entryNames == FTemplateTags::entryNames(text), "the names of entries are the model's");
    FFuzzCheck::holds(SlowTemplateModel::names(text, Qt::CaseInsensitive) == FTemplateTags::tagNames(text),
                      "the names of tags are the model's");
    FFuzzCheck::same(QString(text).replace(FTemplateTags::tagOf(name), "<entry>new</entry>", Qt::CaseInsensitive),
                     FTemplateTags::renameTag(text, name, "new"), "tags are renamed as Qt replaces texts");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const QString input = QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const int headEnd = input.indexOf("\n\n");
    const Table table = headEnd < 0 ? Table() : tableOf(input.left(headEnd));
    const QString text = headEnd < 0 ? input : input.mid(headEnd + 2);
    const bool hasModel = text.size() <= longestForModel;
    for (const bool force : {false, true}) {
        const Written written = write(text, table, force);
        if (hasModel) {
            compareWithModel(text, table, force, written);
        }
    }
    if (hasModel) {
        compareNames(text, table.isEmpty() ? text.left(3) : table.firstKey());
    }
    return 0;
}
