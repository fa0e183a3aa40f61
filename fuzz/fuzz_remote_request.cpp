// Any bytes as a request to the phone remote: the answer is whole, and nothing but a valid command runs.
#include "net/remote_answer.h"

#include <QStringDecoder>

#include <cstdint>

namespace {

void demand(bool condition)
{
    if (!condition)
        __builtin_trap();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const std::string_view bytes(reinterpret_cast<const char *>(data), size);
    static_cast<void>(isRemoteRequest(bytes));
    RemoteState state;
    const RemoteHost host{
        [&state] { return state; },
        [bytes](int limit) {
            demand(limit >= 1 && limit <= 1000);
            return RemoteLibrary{{{std::string(bytes), "x", true}}, 1};
        },
        [&state](const RemoteCommand &command) {
            demand(command.action != RemoteAction::Invalid && command.error.empty() && command.value >= 0);
            demand(command.action != RemoteAction::Vol || command.value <= 100);
            state.volume = command.value;
        },
        [](const std::string &path) { demand(path.size() < 100 && path.find('\n') == std::string::npos); },
    };
    const std::string answer = answerRemoteRequest(bytes, "t", host);
    const std::size_t body = answer.find("\r\n\r\n");
    demand(answer.starts_with("HTTP/1.1 ") && body != std::string::npos);
    // What a refused command quotes is what the client sent, and is text all the same.
    if (answer.starts_with("HTTP/1.1 400 ")) {
        QStringDecoder decoder(QStringDecoder::Utf8);
        static_cast<void>(
            QString(decoder(QByteArrayView(answer.data(), static_cast<qsizetype>(answer.size())))));
        demand(!decoder.hasError());
    }
    demand(answer.find("Content-Length: " + std::to_string(answer.size() - body - 4) + "\r\n") < body);
    return 0;
}
