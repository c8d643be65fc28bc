#include "runner/ActivityLog.h"

#include "runner/ToolProgress.h"

#include <QFileInfo>
#include <QMutexLocker>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

QString shellWord(const QString &word)
{
    static const QRegularExpression plain(u"^[A-Za-z0-9_@%+=:,./-]+$"_s);
    if (plain.match(word).hasMatch() && !word.endsWith(u'\n'))
        return word;
    QString quoted = word;
    return u'\'' + quoted.replace(u'\'', u"'\\''"_s) + u'\'';
}

/// The last line that says something; the transcoder ends with how far it came and that it failed,
/// after the reason.
QString lastReason(const QByteArray &output)
{
    static const QRegularExpression summary(
        u"^(Conversion failed!|(size|frame)= *\\d.*|video:\\S+ audio:.*)$"_s);
    constexpr qsizetype most = 300;
    for (QByteArrayView rest = QByteArrayView(output).trimmed(); !rest.isEmpty();) {
        const qsizetype start = qMax(rest.lastIndexOf('\n'), rest.lastIndexOf('\r')) + 1;
        const QString line = QString::fromUtf8(rest.sliced(start)).trimmed();
        if (!summary.match(line).hasMatch() && !runner::readProgress(line))
            return line.left(most);
        rest = rest.first(start).trimmed();
    }
    return {};
}

} // namespace

QString Activity::commandLine() const
{
    QStringList words;
    for (const QString &word : command)
        words.append(shellWord(word));
    return words.join(u' ');
}

qsizetype ActivityLog::begin(const QString &program, const QStringList &arguments, const QString &subject)
{
    qsizetype position = 0;
    {
        const QMutexLocker lock(&m_mutex);
        position = m_activities.size();
        m_activities.append(
            { QDateTime::currentDateTime(), QStringList(program) + arguments, subject, {}, false, {}, 0 });
    }
    Q_EMIT changed();
    return position;
}

void ActivityLog::append(qsizetype position, const QByteArray &output)
{
    {
        const QMutexLocker lock(&m_mutex);
        Activity &activity = m_activities[position];
        const qsizetype room = qMin(keptOutput - activity.output.size(), output.size());
        activity.output.append(output.constData(), room);
        activity.leftOut += output.size() - room;
    }
    Q_EMIT changed();
}

void ActivityLog::end(qsizetype position, const QString &outcome, bool troubled, bool spoke)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_activities[position].outcome = outcome;
        m_activities[position].troubled = troubled;
        m_activities[position].spoke = spoke;
    }
    Q_EMIT changed();
}

void ActivityLog::note(const QString &text, const QString &detail)
{
    {
        const QMutexLocker lock(&m_mutex);
        m_activities.append({ QDateTime::currentDateTime(), {}, {}, text, true, detail.toUtf8(), 0 });
    }
    Q_EMIT changed();
}

qsizetype ActivityLog::size() const
{
    const QMutexLocker lock(&m_mutex);
    return m_activities.size();
}

Activity ActivityLog::at(qsizetype position) const
{
    const QMutexLocker lock(&m_mutex);
    return m_activities.at(position);
}

QString ActivityLog::trouble(qsizetype position) const
{
    const Activity activity = at(position);
    const QString said = activity.spoke ? lastReason(activity.output) : QString();
    if (activity.command.isEmpty())
        return activity.outcome + u": "_s + said;
    const QString what =
        activity.subject.isEmpty() ? QFileInfo(activity.command.first()).fileName() : activity.subject;
    const bool named =
        said.startsWith(what + u": "_s) || (!activity.subject.isEmpty() && said.contains(activity.subject));
    return (named ? QString() : what + u": "_s) + (said.isEmpty() ? activity.outcome : said);
}

QString ActivityLog::text(const Activity &activity)
{
    QString text = activity.started.toString(u"yyyy-MM-dd HH:mm:ss"_s) + u"  "_s;
    if (!activity.command.isEmpty())
        text += activity.commandLine() + u"\n    "_s;
    text += (activity.outcome.isEmpty() ? tr("is running") : activity.outcome) + u'\n';
    text += QString::fromUtf8(activity.output);
    if (activity.leftOut > 0)
        text += tr("\n(%n more bytes of output are not kept)\n", nullptr,
            static_cast<int>(qMin<qint64>(activity.leftOut, INT_MAX)));
    return text.endsWith(u'\n') ? text : text + u'\n';
}

QString ActivityLog::text() const
{
    QString all;
    for (qsizetype position = 0; position < size(); ++position)
        all += text(at(position)) + u'\n';
    return all;
}
