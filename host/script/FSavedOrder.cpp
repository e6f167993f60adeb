#include "host/script/FSavedOrder.h"

#include "host/core/FManaged.h"
#include "host/script/FLexer.h"

#include <QSet>
#include <QTextStream>

void FSavedOrder::add(const FManaged& object) {
    Block block{object.getName(), {}};
    QTextStream stream(&block.text);
    object.saveScopeManner(stream, 0, false, true);
    stream.flush();
    if (!block.text.isEmpty()) {
        mNumbers.insert(block.name, mBlocks.size());
        mBlocks.push_back(std::move(block));
    }
}

std::vector<std::size_t> FSavedOrder::namedBy(std::size_t number) {
    std::vector<std::size_t> named;
    QSet<std::size_t> seen{number};
    FLexer lexer(mBlocks[number].text);
    bool isCommand = false;
    for (FToken token = lexer.next(); token.kind != FToken::Kind::End; token = lexer.next()) {
        if (token.kind == FToken::Kind::Name && !isCommand) {
            const auto found = mNumbers.constFind(token.text.toString());
            if (found != mNumbers.constEnd() && !seen.contains(*found)) {
                seen.insert(*found);
                named.push_back(*found);
            }
        }
        isCommand = token.kind == FToken::Kind::Dot;
        ++mTokenCount;
    }
    return named;
}

QStringList FSavedOrder::getTexts() {
    struct Visit {
        std::size_t number;
        std::vector<std::size_t> named;
        std::size_t next = 0;
    };
    QStringList texts;
    std::vector<bool> isVisited(mBlocks.size());
    for (std::size_t start = 0; start < mBlocks.size(); ++start) {
        std::vector<Visit> way;
        const auto visit = [&](std::size_t number) {
            if (!isVisited[number]) {
                isVisited[number] = true;
                way.push_back({number, namedBy(number)});
            }
        };
        visit(start);
        while (!way.empty()) {
            Visit& top = way.back();
            if (top.next < top.named.size()) {
                visit(top.named[top.next++]);
            } else {
                texts.append(mBlocks[top.number].text);
                way.pop_back();
            }
        }
    }
    return texts;
}
