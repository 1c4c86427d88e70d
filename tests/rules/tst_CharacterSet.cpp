#include "rules/CharacterSet.h"
#include "support/Registry.h"

using namespace QV_DOC_CONTROLS;

class tst_CharacterSet : public QObject {
    Q_OBJECT
private slots:
    void codesBelow256GoThroughTheCodePage()
    {
        constexpr int rows[][3] = {// code, character set, character; 0 = none
                                   {0xf5, 238, 0x151}, {0xf5, 0, 0xf5},     {0xf5, 204, 0x445},
                                   {0xf5, 161, 0x3c5}, {0xf5, 162, 0xf5},   {0xf0, 162, 0x11f},
                                   {0xf5, 163, 0x1a1}, {0xe0, 177, 0x5d0},  {0xc7, 178, 0x627},
                                   {0xf0, 186, 0x161}, {0xa1, 222, 0xe01},  {0xb1, 128, 0xff71},
                                   {0x81, 128, 0},     {0xb0, 129, 0},      {0xb0, 130, 0},
                                   {0xb0, 134, 0},     {0xb0, 136, 0},      {0x80, 77, 0xc4},
                                   {0x81, 255, 0xfc},  {0xf5, 1, 0x151},    {0xf5, 99, 0x151},
                                   {'A', 129, 'A'},    {' ', 238, ' '},     {9, 238, 0},
                                   {127, 238, 0},      {0x81, 238, 0},      {0x81, 0, 0},
                                   {0xff, 222, 0},     {0xff, 161, 0},      {0xf5, 2, 0xf0f5},
                                   {9, 2, 0xf009},     {255, 2, 0xf0ff}, // signs everywhere
                                   {256, 238, 256},    {0x2116, 2, 0x2116}, {0xf041, 0, 0xf041},
                                   {0xd800, 0, 0},     {0xffff, 0, 0},      {65536, 0, 0},
                                   {-1, 2, 0}};
        for (const auto &[code, charSet, character] : rows)
            tests::same(qPrintable(QString("%1 of %2").arg(code).arg(charSet)),
                        int(characterOf(code, charSet).unicode()), character);
    }
};
QVDC_TEST(tst_CharacterSet)
#include "tst_CharacterSet.moc"
