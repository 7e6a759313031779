#include "rehearsal/template_folder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;

namespace zelvor::rehearsal {
namespace {

class TemplateFolderTest : public testing::Test {
 protected:
    void SetUp() override {
        write(u"secret.html"_s);
        write(u"templates/bug.html"_s);
        write(u"templates/Sub Folder/Line.HTML"_s);
        write(u"templates/pictures/logo.png"_s);
        QDir().mkpath(path(u"templates/folder.html"_s));
        ASSERT_TRUE(QFile::link(path(u"secret.html"_s), path(u"templates/link.html"_s)));
        ASSERT_TRUE(QFile::link(dir_.path(), path(u"templates/up"_s)));
        ASSERT_TRUE(QFile::link(path(u"templates"_s), path(u"root"_s)));
    }

    QString path(const QString& name) const { return dir_.filePath(name); }

    void write(const QString& name) const {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path(name)).path()));
        QFile file(path(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(name.toUtf8());
    }

 private:
    QTemporaryDir dir_;
};

TEST_F(TemplateFolderTest, FindsByNameAndNeverLeavesTheFolder) {
    const std::vector<std::pair<QString, QString>> rows = {
        {u"BUG"_s, u"bug.html"_s},
        {u"bug.html"_s, u"bug.html"_s},
        {u"sub folder/line"_s, u"Sub Folder/Line.HTML"_s},
        {u"Sub Folder\\line"_s, u"Sub Folder/Line.HTML"_s},
    };
    const QStringList notFound =
        u"folder|missing||../secret|..\\secret|pictures/../bug|./bug|/bug|pictures//bug|link|up/secret|bug\0"_s.split(
            u'|') +
        QStringList{path(u"templates/bug.html"_s)};
    for (const QString& root : {u"templates"_s, u"root"_s}) {
        const TemplateFolder folder(path(root));
        for (const auto& [name, found] : rows) EXPECT_EQ(folder.findTemplate(name), found) << qPrintable(name);
        for (const QString& name : notFound) EXPECT_FALSE(folder.findTemplate(name)) << qPrintable(name);
    }
}

TEST_F(TemplateFolderTest, FindsPicturesAndReadsOnlyPlainFiles) {
    const TemplateFolder folder(path(u"templates"_s));
    EXPECT_EQ(folder.findPicture(u"pictures/logo"_s), u"pictures/logo.png"_s);
    EXPECT_EQ(folder.findPicture(u"pictures/logo.png"_s), u"pictures/logo.png"_s);
    EXPECT_FALSE(folder.findPicture(u"bug"_s));

    EXPECT_EQ(folder.read(u"bug.html"_s), "templates/bug.html");
    for (const QString& name :
         {u"folder.html"_s, u"link.html"_s, u"../secret.html"_s, u"up/secret.html"_s, QString()}) {
        EXPECT_FALSE(folder.read(name)) << qPrintable(name);
    }
}

}  // namespace
}  // namespace zelvor::rehearsal
