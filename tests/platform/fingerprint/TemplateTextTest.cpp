#include "platform/fingerprint/TemplateText.h"

#include <gtest/gtest.h>

#include <random>

using namespace velcro::fingerprint;

TEST(TemplateTextTest, bytesComeBackAndAllCharactersCountFromZero) {
    for (const QByteArray& bytes : {QByteArray(1, '\0'), QByteArray("FP3\xff\x80\n"),
                                    QByteArray(1500, 'x'), QByteArray::fromHex("0001fefd")}) {
        const QByteArray text = toTemplateText(bytes);
        EXPECT_EQ(fromTemplateText(text), bytes);
        EXPECT_EQ(*std::ranges::min_element(text) >= '0', true) << text.constData();
    }
}

TEST(TemplateTextTest, whatTheTablesCannotHoldIsRefused) {
    QByteArray noise;
    std::mt19937 random(1);
    for (int i = 0; i < 4000; ++i) {
        noise.append(static_cast<char>(random()));
    }
    EXPECT_EQ(toTemplateText(noise), "");
}

TEST(TemplateTextTest, textOfAnotherMakingIsNothing) {
    const QByteArray good = toTemplateText("a template, a template, a template");
    for (const QByteArray& text :
         {QByteArray(), QByteArray("FP3"), QByteArray("FP3000"), QByteArray("SIM:FINGER"),
          good.chopped(5), good.mid(1), good + '\n', good.left(8) + ' ' + good.mid(9),
          QByteArray("FP3") + QByteArray(3000, '7'), QByteArray("FP3ooooooooooo"),
          QByteArray("FP3") + QByteArray(600, 'o')}) {
        EXPECT_EQ(fromTemplateText(text), std::nullopt) << text.constData();
    }
}
