// Puts the pages of the user guide, as lowdown has turned them into HTML, and their pictures into one file:
//   make_guide OUTPUT NAME.html...    with the pictures below the working directory
// One file, since a folder beside the program would be a customer.
#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>

#include <cstdio>
#include <cstdlib>
#include <functional>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

namespace
{

/// Of what browsers and the program's own window both know.
constexpr auto head = R"(<!DOCTYPE html>
<html><head><meta charset="utf-8"><title>Norvane utility: user guide</title>
<style>
body { font-family: sans-serif; }
table { border-collapse: collapse; }
th, td { border: 1px solid #8b959e; padding: 4px 8px; text-align: left; vertical-align: top; }
img { max-width: 100%; }
pre { white-space: pre-wrap; }
</style></head><body>
)"_L1;

QByteArray readFile(const QString& path)
{
    QFile file(path);
    if (!file.open(QFile::ReadOnly))
        throw std::runtime_error("cannot read " + path.toStdString());
    return file.readAll();
}

using Rewrite = std::function<QString(const QRegularExpressionMatch&)>;

/// @p text with each match of @p pattern replaced by what @p rewrite makes of it.
QString replaceEach(const QString& text, const QString& pattern, const Rewrite& rewrite)
{
    QString result;
    qsizetype done = 0;
    auto matches = QRegularExpression(pattern).globalMatch(text);
    while (matches.hasNext()) {
        const auto match = matches.next();
        result += text.mid(done, match.capturedStart() - done) + rewrite(match);
        done = match.capturedEnd();
    }
    return result + text.mid(done);
}

/// Links between the pages lead to their places here; the text remains of a link to a file that is not here.
QString placeLink(const QRegularExpressionMatch& link, const QStringList& pages)
{
    const QString target = link.captured(1);
    const QString page = target.section(u'#', 0, 0);
    const bool isHere = page.isEmpty() || pages.contains(page);
    if (!isHere)
        return target.contains(u"://"_s) ? link.captured() : link.captured(2);
    const QString place = target.contains(u'#') ? target.section(u'#', 1) : page;
    return u"<a href=\"#%1\">%2</a>"_s.arg(place, link.captured(2));
}

QString embedPicture(const QRegularExpressionMatch& picture)
{
    return u"src=\"data:image/png;base64,"_s + QString::fromLatin1(readFile(picture.captured(1)).toBase64()) +
           u'"';
}

/// A list with links to the chapters of the first page and to the other pages.
QString makeContents(const QString& body)
{
    QString items;
    int page = 0;
    auto headings = QRegularExpression(u"<h([12]) id=\"([^\"]+)\">(.*?)</h[12]>"_s).globalMatch(body);
    while (headings.hasNext()) {
        const auto heading = headings.next();
        const bool isTitle = heading.captured(1) == u"1"_s;
        page += isTitle ? 1 : 0;
        if (isTitle == (page > 1))
            items += u"<li><a href=\"#%1\">%2</a></li>\n"_s.arg(heading.captured(2), heading.captured(3));
    }
    return u"<ul>\n"_s + items + u"</ul>\n"_s;
}

QByteArray makeGuide(const QStringList& files)
{
    QStringList pages;
    QString body;
    for (const QString& file : files) {
        pages += QFileInfo(file).completeBaseName() + u".md"_s;
        body += u"<a name=\"%1\"></a>\n"_s.arg(pages.last()) + QString::fromUtf8(readFile(file));
    }
    body.insert(body.indexOf(u"<h2"_s), makeContents(body));
    body = replaceEach(body, u"<a href=\"([^\"]*)\">(.*?)</a>"_s,
                       [&pages](const auto& link) { return placeLink(link, pages); });
    body = replaceEach(body, u"src=\"([^\"]+\\.png)\""_s, embedPicture);
    return (head + body + u"</body></html>\n"_s).toUtf8();
}

} // namespace

int main(int argc, char** argv)
{
    try {
        QStringList words;
        for (int word = 1; word < argc; ++word)
            words += QFile::decodeName(argv[word]);
        QFile output(words.value(0));
        const QByteArray guide = makeGuide(words.mid(1));
        if (!output.open(QFile::WriteOnly) || output.write(guide) != guide.size() || !output.flush())
            throw std::runtime_error("cannot write " + words.value(0).toStdString());
        return EXIT_SUCCESS;
    } catch (const std::exception& failure) {
        std::fprintf(stderr, "make_guide: %s\n", failure.what());
        return EXIT_FAILURE;
    }
}
