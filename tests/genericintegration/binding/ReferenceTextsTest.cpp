#include "host/core/FPrototypes.h"
#include "host/script/FCmdManager.h"
#include "tests/support/FModelTest.h"

#include <QFile>
#include <QSet>
#include <QXmlStreamReader>

namespace {

/** The keys of the texts that are translated, with their disambiguations. */
QSet<QString> keysWithText() {
    QFile file(QStringLiteral(MERIX_REFERENCE_TEXTS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    QXmlStreamReader xml(&file);
    QSet<QString> keys;
    QString source;
    QString comment;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement) {
            continue;
        }
        if (xml.name() == QLatin1String("source")) {
            source = xml.readElementText();
            comment.clear();
        } else if (xml.name() == QLatin1String("comment")) {
            comment = xml.readElementText();
        } else if (xml.name() == QLatin1String("translation")) {
            const bool isFinished = xml.attributes().value(QLatin1String("type")).isEmpty();
            if (isFinished && !xml.readElementText().trimmed().isEmpty()) {
                keys.insert(source + QLatin1Char('|') + comment);
            }
        }
    }
    EXPECT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    return keys;
}

QSet<QString> keysOfCommands() {
    QSet<QString> keys;
    for (const FCmdRow* row : FCmdManager::instance()->getRows()) {
        for (const FDocuKey& key : FDocuKey::ofCommand(*row)) {
            keys.insert(key.key + QLatin1Char('|') + key.disambiguation);
        }
        // A class that has commands is described as well.
        if (row->owner && row->kind != FCmdRow::Kind::Global) {
            keys.insert(QLatin1Char('!') + row->owner->getName() + QLatin1Char('|'));
            keys.insert(QLatin1Char('!') + row->owner->getName() + QStringLiteral(":example|"));
        }
    }
    return keys;
}

std::string listed(const QSet<QString>& keys) {
    QStringList sorted(keys.values());
    sorted.sort();
    return sorted.join(QLatin1Char('\n')).toStdString();
}

class ReferenceTextsTest : public FModelTest {};

TEST_F(ReferenceTextsTest, everyKeyHasATextAndEveryTextAKey) {
    const QSet<QString> texts = keysWithText();
    const QSet<QString> keys = keysOfCommands();
    EXPECT_EQ(listed(keys - texts), "") << "keys without a text";
    EXPECT_EQ(listed(texts - keys), "") << "texts without a key";
}

}  // namespace
