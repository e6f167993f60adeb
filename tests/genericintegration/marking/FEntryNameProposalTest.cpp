#include "genericintegration/marking/FEntryNameProposal.h"
#include "tests/support/randomCases.h"

#include <gtest/gtest.h>

#include <QRandomGenerator>
#include <QRegExp>

namespace {

QString literalName(const QString& line) {
    const int end = QRegExp("\\:|=|\\d|#|\\,|\\;").indexIn(line);
    QString name = line.left(end).simplified().replace(QRegExp("\\W"), "_").replace(QRegExp("\\_+"), "_");
    while (name.size() > 40) {
        const int last = name.lastIndexOf('_');
        if (last < 0) {
            break;
        }
        name = name.left(last);
    }
    return name.left(40);
}

TEST(FEntryNameProposalTest, nameComesFromTheTextBeforeTheNumber) {
    EXPECT_EQ(FEntryNameProposal("Max Iterations = 500", "500").name, "Max_Iterations");
    EXPECT_EQ(FEntryNameProposal("Max Iterations = 500", "500").value, 500);
    EXPECT_EQ(FEntryNameProposal("on off", "off").value, 0) << "a text is no number";
    EXPECT_EQ(FEntryNameProposal::usable(FEntryNameProposal("5 x", "5").name), "newEntry");
    EXPECT_EQ(FEntryNameProposal::usable(FEntryNameProposal("-5", "5").name), "newEntry");
    EXPECT_EQ(FEntryNameProposal(QString("name_").repeated(12), "").name, "name_name_name_name_name_name_name_name");
    EXPECT_EQ(FEntryNameProposal(QString("n").repeated(60), "").name, QString("n").repeated(40));
}

TEST(FEntryNameProposalTest, randomLinesGiveTheNameThatExpressionsGive) {
    const QStringList parts{"word", "w", "_", " ", "\t",     "-",          "(",
                            "=",    "7", ";", "é", "\u00a0", "\U0001D7D8", "\u0663"};
    for (int seed = 0; seed < randomCases(5000); ++seed) {
        QRandomGenerator random(static_cast<quint32>(seed));
        QString line;
        for (int count = random.bounded(30); count > 0; --count) {
            line += parts[random.bounded(random.bounded(3) == 0 ? parts.size() : 6)];
        }
        ASSERT_EQ(FEntryNameProposal(line, "").name, literalName(line)) << line.toStdString();
    }
}

}  // namespace
