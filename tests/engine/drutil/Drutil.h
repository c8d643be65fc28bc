// Runs the built drutil on virtual recorders in a folder of their own.
#pragma once

#include <QtTest>

#include <memory>
#include <unistd.h>

/// What a run of a program printed, and how it ended.
struct Ran {
    int exit = -1; ///< -1 when it crashed or could not start
    QString out;
    QString err;
};

inline Ran runProgram(const QString &program, const QStringList &arguments,
    const QProcessEnvironment &environment = QProcessEnvironment::systemEnvironment())
{
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(program, arguments);
    Ran ran;
    if (process.waitForFinished(-1) && process.exitStatus() == QProcess::NormalExit)
        ran.exit = process.exitCode();
    ran.out = QString::fromUtf8(process.readAllStandardOutput());
    ran.err = QString::fromUtf8(process.readAllStandardError());
    return ran;
}

/// A command line that runs `command` so that permissions count: root may read and write anything unless it gives
/// that up.
inline QStringList heedingPermissions(const QStringList &command)
{
    const QString without = QStringLiteral("-dac_override,-dac_read_search");
    return ::geteuid() != 0
        ? command
        : QStringList{ QStringLiteral("setpriv"), QStringLiteral("--bounding-set=") + without,
              QStringLiteral("--inh-caps=") + without }
            + command;
}

/// The lines of `text` that tell what is left out or was changed, without their beginning.
inline QStringList notesIn(const QString &text)
{
    QStringList notes;
    for (const QString &line : text.split(u'\n'))
        if (line.startsWith(QStringLiteral("note: ")))
            notes.append(line.mid(6));
    return notes;
}

class Drutil {
public:
    Drutil()
    {
        m_environment.insert(QStringLiteral("CORVALIS_RECORDERS"), recorders());
        // A burner of the machine that runs the tests is never touched.
        m_environment.insert(QStringLiteral("CORVALIS_VIRTUAL"), QStringLiteral("only"));
    }

    static QString program() { return qEnvironmentVariable("CORVALIS_BIN") + QStringLiteral("/drutil"); }

    QString recorders() const { return m_dir.path() + QStringLiteral("/recorders"); }
    QString recorder(int number = 1) const { return recorders() + u'/' + QString::number(number); }
    QString path(const QString &name) const { return m_dir.filePath(name); }
    QProcessEnvironment &environment() { return m_environment; }

    Ran operator()(const QStringList &arguments) const
    {
        return runProgram(program(), arguments, m_environment);
    }

    /// The text of the recorder's state.
    QByteArray state(int number = 1) const
    {
        QFile file(recorder(number) + QStringLiteral("/recorder.ini"));
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// Makes recorder 1 with a blank of `kind`.
    bool insert(const QString &kind) const
    {
        return (*this)({ QStringLiteral("list") }).exit == 0
            && (*this)({ QStringLiteral("insert"), kind }).exit == 0;
    }

    /// The line of a status that begins with `label`, from the first word after the label on.
    QString fact(const QString &label) const
    {
        const QStringList lines = (*this)({ QStringLiteral("status") }).out.split(u'\n');
        for (const QString &line : lines)
            if (line.trimmed().startsWith(label))
                return line.trimmed().mid(label.size()).trimmed();
        return {};
    }

private:
    QTemporaryDir m_dir;
    QProcessEnvironment m_environment = QProcessEnvironment::systemEnvironment();
};

inline bool writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.write(content) == content.size();
}

inline QByteArray readFile(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// A file of `size` bytes that takes no room.
inline bool sparseFile(const QString &path, qint64 size)
{
    QFile file(path);
    return file.open(QFile::WriteOnly) && file.resize(size);
}
