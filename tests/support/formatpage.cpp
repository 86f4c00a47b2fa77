#include "tests/support/formatpage.h"

#include "graphics3d/readers/readererror.h"
#include "tests/support/capturederror.h"
#include "tests/support/capturedlog.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <sstream>
#include <utility>

namespace vxgraphics3d {

FormatPage::FormatPage(const std::string& docsFolder, const std::string& name, std::string prefix)
    : m_samples(docsFolder + "samples/"), m_prefix(std::move(prefix))
{
    std::ifstream stream(docsFolder + name);
    std::ostringstream text;
    text << stream.rdbuf();
    m_text = text.str();
}

std::vector<FormatPage::Fault> FormatPage::faults() const
{
    const std::regex tableRow(R"(\| `(.*)` \| (\d+|none) \| .* \| \[`.*`\]\(samples/(.*)\) \|)");
    std::vector<Fault> faults;
    for (std::sregex_iterator row(m_text.begin(), m_text.end(), tableRow), end; row != end; ++row) {
        Fault fault = {row->str(1), row->str(2), m_samples + row->str(3)};
        if (const std::size_t at = fault.message.find("FILE"); at != std::string::npos) {
            fault.message.replace(at, 4, fault.sample);
        }
        faults.push_back(std::move(fault));
    }
    return faults;
}

std::vector<std::string> FormatPage::shownSamples() const
{
    std::vector<std::string> shown;
    for (const auto& file : std::filesystem::directory_iterator(m_samples)) {
        const std::string name = file.path().filename();
        if (m_text.find("<!-- from docs/samples/" + name + " -->") != std::string::npos) {
            shown.push_back(file.path());
        } else if (name.rfind(m_prefix, 0) == 0) {
            EXPECT_NE(m_text.find("(samples/" + name + ")"), std::string::npos) << name;
        }
    }
    return shown;
}

void expectFaults(const FormatPage& page, const std::function<bool(const std::string&, ReaderError&)>& read,
                  const std::function<bool(std::string_view)>& toError,
                  const std::function<bool(std::string_view)>& toLog)
{
    for (const auto& [message, row, sample] : page.faults()) {
        const CapturedLog log(ErrorLog::Level::error);
        CapturedError standardError;
        ReaderError error;
        EXPECT_FALSE(read(sample, error)) << sample;
        EXPECT_EQ(error.message, message) << sample;
        EXPECT_EQ(error.row == c_wholeFile ? "none" : std::to_string(error.row), row) << sample;
        EXPECT_EQ(log.messages(), toLog(message) ? std::vector{message} : std::vector<std::string>()) << sample;
        const std::string text = standardError.take();
        EXPECT_EQ(text.substr(0, message.size()), toError(message) ? message : "") << sample;
    }
}

} // namespace vxgraphics3d
