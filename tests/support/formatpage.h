#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace vxgraphics3d {

struct ReaderError;

/// A page of the documentation about a file format: its samples, and the table of what goes wrong.
class FormatPage {
public:
    /// A row of the table.
    struct Fault {
        std::string message;
        std::string row;    ///< "none" without one
        std::string sample; ///< its path
    };

    /// @param docsFolder the folder of the pages
    /// @param prefix what the names of the format's samples begin with
    FormatPage(const std::string& docsFolder, const std::string& name, std::string prefix);

    std::vector<Fault> faults() const;
    /// The samples whose text is on the page. Each other sample of the format must be in the table, or the test fails.
    std::vector<std::string> shownSamples() const;

private:
    std::string m_samples;
    std::string m_prefix;
    std::string m_text;
};

/// Checks that reading each faulty sample of a page gives the message and the row that the page states.
/// @param read reads a sample, which must fail
/// @param toError,toLog whether a message goes to standard error, and to the log
void expectFaults(const FormatPage& page, const std::function<bool(const std::string&, ReaderError&)>& read,
                  const std::function<bool(std::string_view)>& toError,
                  const std::function<bool(std::string_view)>& toLog);

} // namespace vxgraphics3d
