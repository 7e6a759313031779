#include "app_cards/user_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace zelvor::test {

TEST(UserFolder, IsMadeFromTheDemoOnceAndThenTheUsers) {
    const QTemporaryDir work;
    const QString demo = installedDemo(work.filePath(u"bin"_s));
    const QString own = work.filePath(u"data/zelvor-cards"_s);
    EXPECT_NE(makeUserFolder(own, demo), QString()) << "no demo";
    EXPECT_FALSE(QFile::exists(own));
    EXPECT_FALSE(worksOnUserFolder(work.filePath(u"bin"_s)));

    QDir().mkpath(demo + u"/MODULES/QRD_EN"_s);
    const auto write = [](const QString& path, const QByteArray& bytes) {
        QFile file(path);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    };
    write(demo + u"/MODULES/QRD_EN/a.csp"_s, "demo");
    QFile::setPermissions(demo + u"/MODULES/QRD_EN/a.csp"_s, QFile::ReadOwner);

    EXPECT_TRUE(worksOnUserFolder(work.filePath(u"bin"_s)));
    QDir().mkpath(work.filePath(u"bin/MODULES"_s));
    EXPECT_FALSE(worksOnUserFolder(work.filePath(u"bin"_s))) << "packs beside the program are meant";
    EXPECT_EQ(makeUserFolder(own, demo), QString());
    QFile copy(own + u"/MODULES/QRD_EN/a.csp"_s);
    EXPECT_TRUE(copy.permissions() & QFile::WriteOwner) << "the user's to edit";
    write(copy.fileName(), "mine");
    write(demo + u"/MODULES/PACKS.TXT"_s, {});
    EXPECT_EQ(makeUserFolder(own, demo), QString());
    EXPECT_FALSE(QFile::exists(own + u"/MODULES/PACKS.TXT"_s));
    ASSERT_TRUE(copy.open(QIODevice::ReadOnly));
    EXPECT_EQ(copy.readAll(), "mine");
    EXPECT_EQ(QDir(work.filePath(u"data"_s)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
              QStringList{u"zelvor-cards"_s})
        << "nothing half made stays";
}

}  // namespace zelvor::test
