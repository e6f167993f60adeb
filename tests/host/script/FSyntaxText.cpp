#include "tests/host/script/FSyntaxText.h"

#include "host/core/FNumberText.h"
#include "host/core/FQuotedText.h"

namespace {

QString textOf(const FSyntaxExpr& expression);
QString textOf(const FSyntaxBody& body);

const char* const signs[] = {"||", "&&", "==", "!=", "<", "<=", ">", ">=", "+", "-", "*", "/", "%", "^", "+", "-", "!"};

QString signOf(const FSyntaxOperator& op) {
    return signs[static_cast<int>(op.kind)];
}

/** With the point that tells it from an integer. */
QString doubleText(double number) {
    const QString text = numberText(number);
    return text.contains('.') || text.contains('e') ? text : text + ".";
}

QString joined(const std::vector<FSyntaxExpr>& operands, const char* separator) {
    QString text;
    for (const FSyntaxExpr& operand : operands) {
        text += (text.isEmpty() ? "" : separator) + textOf(operand);
    }
    return text;
}

QString literalText(const FLiteral& literal) {
    if (const auto* text = std::get_if<QString>(&literal)) {
        return quoteText(*text);
    }
    if (const auto* number = std::get_if<double>(&literal)) {
        return doubleText(*number);
    }
    if (const auto* integer = std::get_if<qint64>(&literal)) {
        return QString::number(*integer);
    }
    const auto* truth = std::get_if<bool>(&literal);
    return truth == nullptr ? "NULL" : *truth ? "true" : "false";
}

QString rowText(const FSyntaxExpr& row) {
    QString text = "(" + textOf(row.operands.front());
    for (std::size_t i = 0; i < row.operators.size(); ++i) {
        text += " " + signOf(row.operators[i]) + " " + textOf(row.operands[i + 1]);
    }
    return text + ")";
}

/** A command's dot after a number could be taken for its point. */
QString chainText(const FSyntaxExpr& chain) {
    const QString receiver = textOf(chain.operands.front());
    const bool isLiteral = chain.operands.front().kind == FSyntaxExpr::Kind::Literal;
    QString text = isLiteral ? "(" + receiver + ")" : receiver;
    for (std::size_t i = 1; i < chain.operands.size(); ++i) {
        text += "." + textOf(chain.operands[i]);
    }
    return text;
}

/** In the brackets that a statement needs around it. */
QString bracketed(const FSyntaxExpr& condition) {
    const QString text = textOf(condition);
    return condition.kind == FSyntaxExpr::Kind::Unary || condition.kind == FSyntaxExpr::Kind::Row ? text
                                                                                                  : "(" + text + ")";
}

QString textOf(const FSyntaxExpr& expression) {
    const QString name = expression.name;
    switch (expression.kind) {
        case FSyntaxExpr::Kind::Literal:
            return literalText(expression.literal);
        case FSyntaxExpr::Kind::Name:
            return name;
        case FSyntaxExpr::Kind::List:
            return "[" + joined(expression.operands, ", ") + "]";
        case FSyntaxExpr::Kind::Call:
            return name + "(" + joined(expression.operands, ", ") + ")";
        case FSyntaxExpr::Kind::Chain:
            return chainText(expression);
        case FSyntaxExpr::Kind::Unary:
            return "(" + signOf(expression.operators.front()) + joined(expression.operands, "") + ")";
        case FSyntaxExpr::Kind::Row:
            return rowText(expression);
    }
    return {};
}

QString textOf(const FSyntaxDeclaration& declaration) {
    QString text = (declaration.isOutsideScope ? "&" : "") + declaration.creator.name + " " + declaration.name + "(" +
                   joined(declaration.creator.operands, ", ") + "){";
    for (const FSyntaxBlockLine& line : declaration.block) {
        text += "." + joined(line, ".") + ";";
    }
    return text + "}";
}

QString textOf(const FSyntaxAssignment& assignment) {
    return assignment.variable + " = " + textOf(assignment.value);
}

QString textOf(const FSyntaxIf& statement) {
    QString text;
    for (const auto& branch : statement.branches) {
        text += "if " + bracketed(branch.condition) + "{" + textOf(branch.body) + "}else ";
    }
    return text + "{" + textOf(statement.otherwise) + "}";
}

QString textOf(const FSyntaxWhile& loop) {
    return "while " + bracketed(loop.condition) + "{" + textOf(loop.body) + "}";
}

QString textOf(const FSyntaxFor& loop) {
    return "for (" + loop.variable + " in " + textOf(loop.list) + "){" + textOf(loop.body) + "}";
}

QString textOf(const FSyntaxBody& body) {
    QString text;
    for (const FSyntaxStatement& statement : body) {
        text += std::visit([](const auto& content) { return textOf(content); }, statement.content) + "\n";
    }
    return text;
}

}  // namespace

std::string syntaxText(const FSyntaxExpr& expression) {
    return textOf(expression).toStdString();
}

std::string syntaxText(const FScript& script) {
    QString text = textOf(script.statements);
    for (const FSyntaxError& error : script.errors) {
        text += error.toString(script.file) + "\n";
    }
    return text.toStdString();
}
