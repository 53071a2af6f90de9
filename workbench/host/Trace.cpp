#include "workbench/host/Trace.h"

#include <algorithm>

#include "workbench/sql/SqlSecrets.h"

namespace tsln::workbench {
namespace {

constexpr std::size_t longestShown = 100;

/// The members that take a password or return one.
constexpr std::string_view secretMembers[] = {"GetSHA2", "ComplexEncrypt", "ComplexDecrypt"};

bool takesSecrets(std::string_view member) {
    return std::ranges::any_of(secretMembers,
                               [&](std::string_view secret) { return sameName(member, secret); });
}

/// Returns a short text for the value.
std::string shortText(const Variant& value) {
    if (value.isObject()) return value.toObject() ? "object" : "nothing";
    if (value.isNull()) return "Null";
    if (value.isMissing()) return "";
    if (!value.isText()) return value.toText();
    std::string text = value.toText();
    if (text.size() > longestShown) {
        std::size_t end = longestShown;
        while (end > 0 && (static_cast<unsigned char>(text[end]) & 0xC0) == 0x80)
            --end;  // do not split a character
        text = text.substr(0, end) + "...";
    }
    return '"' + text + '"';
}

bool isStatement(const Variant& value) {
    if (!value.isText()) return false;
    const std::string text = value.toText();
    const std::size_t begin = text.find_first_not_of(" \t\r\n");
    if (begin == text.npos) return false;
    const std::size_t end = text.find_first_of(" \t\r\n", begin);
    if (end == text.npos) return false;
    const std::string_view word = std::string_view(text).substr(begin, end - begin);
    for (const std::string_view verb : {"SELECT", "INSERT", "UPDATE", "DELETE", "EXEC"}) {
        if (sameName(word, verb)) return true;
    }
    return false;
}

}  // namespace

void Tracer::tell(const TraceEntry& entry) const noexcept {
    for (const Observer& observer : observers_) {
        try {
            observer(entry);
        } catch (...) {
        }
    }
}

Variant TracedObject::invoke(std::string_view member, Access access, Arguments arguments) {
    if (tracer_->observers_.empty()) {
        Variant result = target_->invoke(member, access, arguments);
        if (arguments.count() > 0 || !result.isObject() || !result.toObject()) return result;
        return std::make_shared<TracedObject>(result.toObject(), std::string(member), tracer_);
    }

    TraceEntry entry;
    entry.number = ++tracer_->calls_;
    entry.depth = tracer_->depth_;
    entry.member = (name_.empty() ? "" : name_ + ".") + std::string(member);
    entry.access = access;
    bool secret = takesSecrets(member);
    for (std::size_t i = 0; i < arguments.count(); ++i) {
        if (i > 0) entry.arguments += ", ";
        Variant shown = secret ? Variant(hiddenText) : arguments[i];
        if (isStatement(shown) && namesSecrets(shown.toText())) {
            shown = withoutSecrets(shown.toText());
            secret = true;  // so is the result
        }
        entry.arguments += shortText(shown);
        if (entry.statement.empty() && isStatement(shown)) entry.statement = shown.toText();
    }

    struct Depth {
        int& value;
        explicit Depth(int& depth) : value(depth) { ++value; }
        ~Depth() { --value; }
    };
    const auto begin = std::chrono::steady_clock::now();
    const auto ended = [&] {
        entry.duration =
            std::chrono::duration_cast<std::chrono::microseconds>(std::chrono::steady_clock::now() - begin);
    };
    Variant result;
    try {
        const Depth depth(tracer_->depth_);
        result = target_->invoke(member, access, arguments);
    } catch (const std::exception& error) {
        ended();
        entry.failed = true;
        entry.result = error.what();
        tracer_->tell(entry);
        throw;
    }
    ended();
    entry.result = shortText(secret && result.isText() ? Variant(hiddenText) : result);
    entry.fetch = arguments.count() == 0 && result.isObject() && result.toObject();
    tracer_->tell(entry);
    if (!entry.fetch) return result;
    return std::make_shared<TracedObject>(result.toObject(), std::string(member), tracer_);
}

}  // namespace tsln::workbench
