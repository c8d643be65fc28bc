// Lines for a reader who keeps up, one who stops reading, and one who has gone.
#include "program/Output.h"

#include <QtTest>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <string>
#include <thread>
#include <unistd.h>

using engine::program::Output;

namespace {

constexpr int pipeBytes = 2 * 4096;

/// A small pipe.
class Pipe {
public:
    Pipe()
    {
        if (::pipe2(m_ends.data(), O_CLOEXEC) != 0
            || ::fcntl(m_ends[1], F_SETPIPE_SZ, pipeBytes) != pipeBytes)
            qFatal("no pipe");
    }
    ~Pipe()
    {
        closeEnd(0);
        closeEnd(1);
    }

    int writing() const { return m_ends[1]; }

    void fill() const
    {
        const std::string page(pipeBytes, '#');
        QCOMPARE(::write(writing(), page.data(), page.size()), ssize_t(pipeBytes));
    }

    /// What is in it now, or, up to the end, as soon as the writing end is closed.
    QByteArray read() const
    {
        QByteArray all(100000, '\0');
        const ssize_t n = ::read(m_ends[0], all.data(), std::size_t(all.size()));
        return all.left(qMax<ssize_t>(n, 0));
    }

    void closeEnd(int end)
    {
        if (m_ends[end] >= 0)
            ::close(m_ends[end]);
        m_ends[end] = -1;
    }

private:
    std::array<int, 2> m_ends{ -1, -1 };
};

int goOn()
{
    return 0;
}

int stop()
{
    return SIGTERM;
}

} // namespace

class OutputTest : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { std::signal(SIGPIPE, SIG_IGN); }

    void everythingComesInOrder()
    {
        const Pipe pipe;
        Output output(pipe.writing(), goOn);
        output.offer("one\n");
        output.tell("two\n");
        output.offer("three\n");
        QCOMPARE(pipe.read(), "one\ntwo\nthree\n");
    }

    void withoutRoomProgressIsDroppedAndTheRestWaits()
    {
        const Pipe pipe;
        Output output(pipe.writing(), goOn);
        pipe.fill();
        output.offer("old\n");
        output.tell("kept\n");
        output.offer("old\n");
        output.tell("kept as well\n");
        QCOMPARE(pipe.read(), QByteArray(pipeBytes, '#'));
        output.offer("new\n");
        QCOMPARE(pipe.read(), "kept\nkept as well\nnew\n");
    }

    // More than the pipe holds goes out piece by piece, and no progress comes between.
    void aLongLineIsNotBroken()
    {
        const Pipe pipe;
        Output output(pipe.writing(), goOn);
        const std::string line = std::string(10000, 'x') + '\n';
        output.tell(line);
        QByteArray all;
        while (all.size() < 10001) {
            output.offer("between\n");
            all += pipe.read();
        }
        output.offer("behind\n");
        QCOMPARE(all.left(10001), QByteArray::fromStdString(line));
        all = all.mid(10001) + pipe.read();
        QCOMPARE(all.replace("between\n", ""), "behind\n");
    }

    void theEndWaitsForTheReader()
    {
        Pipe pipe;
        pipe.fill();
        std::thread writer([&pipe] {
            Output output(pipe.writing(), goOn);
            output.tell("Done.\n");
            output.finish();
            pipe.closeEnd(1);
        });
        QByteArray all;
        for (QByteArray piece; !(piece = pipe.read()).isEmpty();)
            all += piece;
        writer.join();
        QCOMPARE(all.mid(pipeBytes), "Done.\n");
    }

    void aStopEndsTheWait()
    {
        const Pipe pipe;
        pipe.fill();
        {
            Output output(pipe.writing(), stop);
            output.tell("Stopped.\n");
        }
        QCOMPARE(pipe.read(), QByteArray(pipeBytes, '#'));
    }

    void aTerminalThatNobodyReadsHoldsUpNothing()
    {
        const int screen = ::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC);
        QVERIFY(screen >= 0 && ::grantpt(screen) == 0 && ::unlockpt(screen) == 0);
        const int terminal = ::open(::ptsname(screen), O_WRONLY | O_NOCTTY | O_CLOEXEC);
        QVERIFY(terminal >= 0);
        {
            Output output(terminal, stop);
            for (int i = 0; i < 5000; ++i)
                output.tell("a note that is worth keeping\n");
        }
        QCOMPARE(::fcntl(terminal, F_GETFL) & O_NONBLOCK, 0); // others write to it as before
        char shown[7] = {};
        QCOMPARE(::read(screen, shown, 6), ssize_t(6));
        QCOMPARE(shown, "a note");
        ::close(terminal);
        ::close(screen);
    }

    void aReaderWhoHasGoneIsNoReasonToWait()
    {
        Pipe pipe;
        pipe.fill();
        Output output(pipe.writing(), goOn);
        output.tell("kept\n");
        pipe.closeEnd(0);
        output.offer("new\n");
        output.finish();
    }
};

QTEST_APPLESS_MAIN(OutputTest)
#include "OutputTest.moc"
