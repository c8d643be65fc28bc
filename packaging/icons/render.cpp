// render IMAGE.svg FOLDER NAME SIZE...: draws a picture in sizes, each as FOLDER/SIZExSIZE-NAME.png. A part of the build.
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

using namespace Qt::StringLiterals;

int main(int argc, char **argv)
{
    constexpr int firstSize = 4;
    if (argc <= firstSize) {
        std::fputs("render IMAGE.svg FOLDER NAME SIZE...\n", stderr);
        return 2;
    }
    QSvgRenderer picture(QFile::decodeName(argv[1]));
    for (int i = firstSize; i < argc; ++i) {
        const int size = QByteArray(argv[i]).toInt();
        QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::transparent);
        QPainter painter(&image);
        picture.render(&painter);
        painter.end();
        const QString path =
            u"%1/%2x%2-%3.png"_s.arg(QFile::decodeName(argv[2])).arg(size).arg(QFile::decodeName(argv[3]));
        if (!picture.isValid() || !image.save(path)) {
            std::fprintf(stderr, "render: %s cannot be made of %s\n", qPrintable(path), argv[1]);
            return 1;
        }
    }
    return 0;
}
