#include "host/core/FPrototypes.h"
#include "host/script/FCmdManager.h"
#include "tests/support/FModelTest.h"

#include <QFile>
#include <QRegularExpression>
#include <QSet>

namespace {

void addClass(QSet<QString>& keys, const QString& name) {
    keys.insert(QLatin1Char('!') + name + QLatin1Char('|'));
    keys.insert(QLatin1Char('!') + name + QStringLiteral(":example|"));
}

/** The keys of the texts that are translated, with their disambiguations. */
QSet<QString> keysWithText() {
    QFile file(QStringLiteral(MERIX_REFERENCE_TEXTS));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    const QRegularExpression message(
        "<source>([^<]+)</source>\\s*(?:<comment>([^<]*)</comment>\\s*)?<translation>[^<]*\\S[^<]*</translation>");
    QSet<QString> keys;
    for (auto match = message.globalMatch(QString::fromUtf8(file.readAll())); match.hasNext();) {
        const QRegularExpressionMatch found = match.next();
        const QString key = found.captured(1) + QLatin1Char('|') + found.captured(2);
        keys.insert(QString(key).replace("&lt;", "<").replace("&gt;", ">"));
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
            addClass(keys, row->owner->getName());
        }
    }
    // So is each class of the plug-in, with those that only windows have.
    const QRegularExpression ofPlugin("GenInt|SoftCon[A-Z]\\w+Item|SoftConItemSize|SoftwareConnectorItem");
    for (const QString& name : FPrototypes::getNames()) {
        if (name.contains(ofPlugin) && !name.contains(QStringLiteral("Cmd"))) {
            addClass(keys, name);
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
