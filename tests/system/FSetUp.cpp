#include "tests/system/FSetUp.h"

QString FSetUp::text() const {
    QStringList names;
    QString text = templatesText(names) + "genericIntegrationDefinition def() {\n";
    for (const QString& entry : entries) {
        text += "    .addEntry(" + entry + ")\n";
    }
    QStringList quotedArguments;
    for (const QString& argument : arguments) {
        quotedArguments.append(quoted(argument));
    }
    return text + "    .setFiles([" + names.join(",") +
           "])\n}\n"
           "genericIntegrationConfiguration conf() { .setDefinition(def) }\n"
           "genericIntegrationComputation comp() {\n"
           "    .setConfiguration(conf)\n"
           "    .setExecutable(" +
           quoted(program) + ")\n    .setArguments([" + quotedArguments.join(",") + "])\n" + settings + "\n}\n";
}

QString FSetUp::templatesText(QStringList& names) const {
    QString text;
    const auto add = [&](const QString& kind, const QString& name, const QString& file, const QString& content) {
        names.append(name);
        text += kind + " " + name + "() {\n    .setFileName(" + quoted(file) + ")\n    " + content + "\n}\n";
    };
    for (const auto& [file, content] : inputs) {
        add("genericIntegrationCommandFile", QString("in%1").arg(names.size() + 1), file,
            ".setContent(" + quoted(content) + ")");
    }
    for (const auto& [file, values] : results) {
        add("genericIntegrationResultsFile", QString("out%1").arg(names.size() - inputs.size() + 1), file,
            ".setValues([" + values.join(",") + "])");
    }
    return text;
}

FSetUp FSetUp::shell(const QString& script) {
    FSetUp setUp;
    setUp.arguments = QStringList{"-c", script};
    return setUp;
}

QString FSetUp::quoted(const QString& text) {
    QString escaped = text;
    return '"' + escaped.replace("\\", "\\\\").replace("\"", "\\\"") + '"';
}

QString FSetUp::value(const QString& name, int line, int column, const QString& anchor, const QString& occurrence) {
    return QString("[%1, %2, %3, %4, %5, \"FDouble\", \"\"]")
        .arg(quoted(name), QString::number(line), QString::number(column), quoted(anchor), occurrence);
}

QString FSetUp::number(const QString& file, const QString& name) {
    return QString("comp.getResults().getTable(%1).getElementAt(%2)").arg(quoted(file), quoted(name));
}
