#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

#include <vector>

class FManaged;

/**
 * The saved texts of objects, in the order in which they are added as far as that puts each name before its use; an
 * object that is named by one added before it comes before that one. Where names form a ring, one of them comes
 * after its use. Time linear in the length of the texts.
 */
class FSavedOrder {
 public:
    void add(const FManaged& object);
    QStringList getTexts();
    /** Words, numbers, texts and signs of the texts that were given. */
    qint64 getTokenCount() const { return mTokenCount; }

 private:
    struct Block {
        QString name;
        QString text;
    };

    /** The blocks whose objects a text names, each once. */
    std::vector<std::size_t> namedBy(std::size_t number);

    std::vector<Block> mBlocks;
    QHash<QString, std::size_t> mNumbers;
    qint64 mTokenCount = 0;
};
