// A variable of this process' environment by which tools are told what a person wants.
#pragma once

#include <QByteArray>
#include <QString>

namespace runner {

/// What the variable was at the start comes back whenever the person wants nothing. GUI thread only.
class ToolVariable {
public:
    explicit ToolVariable(const char *name)
        : m_name(name)
        , m_inherited(qgetenv(name))
    {
    }

    QByteArray inherited() const { return m_inherited; }

    /// Empty: as at the start.
    void set(const QString &value) const
    {
        const QByteArray bytes = value.isEmpty() ? m_inherited : value.toUtf8();
        if (bytes.isEmpty())
            qunsetenv(m_name);
        else
            qputenv(m_name, bytes);
    }

private:
    const char *m_name;
    QByteArray m_inherited;
};

} // namespace runner
