#include "host/script/FCmdManager.h"
#include "tests/support/FModelTest.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {

/** The keys of the texts that are translated, with their disambiguations. */
QSet<QString> keysWithText() {
    QFile file(QStringLiteral(MERIX_REFERENCE_TEXTS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression message(
        "<source>([^<]+)</source>\\s*(?:<comment>([^<]*)</comment>\\s*)?<translation>[^<]*\\S[^<]*</translation>");
    QSet<QString> keys;
    for (auto match = message.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        keys.insert(found.captured(1) + QLatin1Char('|') + found.captured(2));
    }
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
