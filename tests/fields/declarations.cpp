#include "declarations.h"

#include "samples/samples.h"

#include <QtCore/QDir>
#include <QtCore/QList>
#include <QtCore/QRegularExpression>

namespace test {
namespace {

QString without(QString text, const char *pattern)
{
    return text.remove(QRegularExpression(pattern, QRegularExpression::MultilineOption
                                                       | QRegularExpression::DotMatchesEverythingOption));
}

/// Braces that are open: those of a struct or class, of an enumeration, or any others.
struct Scope
{
    enum Kind { Struct, Enumeration, Other };

    Kind kind = Other;
    QString name;
    bool isPublic = true;
};

class Reader
{
public:
    Declarations read(const QString &text)
    {
        for (const QChar character : text) {
            if (character == '{')
                open();
            else if (character == '}')
                close();
            else if (character == ';')
                endStatement();
            else
                m_statement += character;
        }
        return m_declarations;
    }

private:
    void open()
    {
        takeAccess();
        static const QRegularExpression head("^(?:template *<[^{]*> *)?(struct|class|enum) +(?:VORNSDK_\\w+ +)?(\\w+)");
        const QRegularExpressionMatch match = head.match(m_statement.simplified());
        Scope scope;
        if (match.hasMatch()) {
            scope.kind = match.captured(1) == "enum" ? Scope::Enumeration : Scope::Struct;
            scope.name = match.captured(2);
            scope.isPublic = match.captured(1) != "class";
        } else if (m_statement.simplified().startsWith("namespace ")) {
            m_statement.clear();
        }
        m_outer.append(match.hasMatch() ? QString() : m_statement);
        m_statement.clear();
        m_scopes.append(scope);
    }

    void close()
    {
        const QString name = qualifiedName();
        const Scope scope = m_scopes.takeLast();
        if (scope.kind == Scope::Enumeration) {
            for (const QString &enumerator : m_statement.split(',')) {
                if (!enumerator.simplified().isEmpty())
                    m_declarations.enumerators[name].append(enumerator.simplified());
            }
        }
        // Behind the braces of an initialisation the statement goes on; behind those of a function it has ended.
        m_statement = m_outer.takeLast();
        if (m_statement.contains('('))
            m_statement.clear();
    }

    void endStatement()
    {
        takeAccess();
        QString statement = m_statement.simplified();
        m_statement.clear();
        static const QRegularExpression noField(
            "^(using|typedef|friend|template|static|enum|struct|class)\\b|\\boperator\\b");
        if (statement.isEmpty() || m_scopes.isEmpty() || m_scopes.constLast().kind != Scope::Struct
            || !m_scopes.constLast().isPublic || statement.contains(noField))
            return;
        for (qsizetype size = -1; size != statement.size();) {
            size = statement.size();
            statement = without(statement, "<[^<>]*>");
        }
        for (const QString &declarator : statement.split(',')) {
            const QString head = declarator.section('=', 0, 0).section('[', 0, 0).simplified();
            if (head.contains('(')) // a function
                return;
            static const QRegularExpression lastWord("\\w+$");
            m_declarations.fields[qualifiedName()].append(lastWord.match(head).captured());
        }
    }

    /// Takes "public:" and its like off the start of a statement.
    void takeAccess()
    {
        static const QRegularExpression access("^\\s*(public|protected|private)\\s*:");
        for (auto match = access.match(m_statement); match.hasMatch(); match = access.match(m_statement)) {
            m_scopes.last().isPublic = match.captured(1) == "public";
            m_statement.remove(0, match.capturedEnd());
        }
    }

    QString qualifiedName() const
    {
        QStringList names;
        for (const Scope &scope : m_scopes) {
            if (!scope.name.isEmpty())
                names.append(scope.name);
        }
        return names.join("::");
    }

    Declarations m_declarations;
    QList<Scope> m_scopes;
    QStringList m_outer; // for each scope what the statement was before it
    QString m_statement;
};

} // namespace

Declarations declarationsIn(const QString &header)
{
    const QString code = without(without(header, "/\\*.*?\\*/"), "//[^\\n]*");
    return Reader().read(without(code, "^#(?:[^\\n]*\\\\\\n)*[^\\n]*"));
}

Declarations declarationsBelow(const QString &folder)
{
    Declarations declarations;
    const QStringList headers = QDir(folder).entryList({"*.h"}, QDir::Files);
    for (const QString &header : headers) {
        const Declarations ofHeader = declarationsIn(contentsOf(folder + '/' + header));
        declarations.fields.insert(ofHeader.fields);
        declarations.enumerators.insert(ofHeader.enumerators);
    }
    return declarations;
}

} // namespace test
