#include "app/TerminalIO.h"

#include "app/AnswerReader.h"
#include "app/console.h"
#include "app/valueText.h"

namespace inkmacro {

TerminalIO::TerminalIO(OdDbDatabase& database) : CFxUserIO(database), reader_(makeAnswerReader())
{
}

TerminalIO::~TerminalIO() = default;

void TerminalIO::ShowMessage(const CFxString& message)
{
    printOut(printable(message) + '\n');
}

bool TerminalIO::ReadAnswer(const CFxString& prompt, const std::vector<CFxString>& expected, CFxString& answer)
{
    constexpr char escape = 0x1B;
    QByteArray line;
    if (!reader_->read(printable(prompt), expected, line) || line.endsWith(escape))
        return false;
    answer = QString::fromLocal8Bit(line);
    return true;
}

} // namespace inkmacro
