#include "tests/faults/PowerCut.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

namespace korvande::testing {

namespace {

void Put(std::string& bytes, std::size_t place, const std::string& more) {
    if (bytes.size() < place + more.size()) bytes.resize(place + more.size());
    bytes.replace(place, more.size(), more);
}

std::string FolderOfName(const std::string& name) { return name.substr(0, name.rfind('/') + 1); }

}  // namespace

Disk::Disk(std::string itsFolder, const Files& before, const std::map<std::uint64_t, std::string>& itsNumbers)
    : folder(std::move(itsFolder)) {
    for (const auto& [number, name] : itsNumbers) {
        const auto file = before.find(name);
        if (file == before.end()) {
            folders[number] = name;
            continue;
        }
        nodeNumbers[number] = nodes.size();
        names[name] = nodes.size();
        nodes.push_back({file->second, file->second, {}});
    }
    flushedNames = names;
}

std::string Disk::Own(const std::string& path) const {
    std::string name = path.starts_with(folder + "/") ? path.substr(folder.size() + 1) : path;
    while (name.starts_with("./")) name.erase(0, 2);
    return name;
}

std::size_t Disk::NodeOf(std::uint64_t number) {
    const auto found = nodeNumbers.find(number);
    if (found == nodeNumbers.end()) throw std::runtime_error("a file that was never made");
    return found->second;
}

void Disk::Do(const Step& step) {
    switch (step.change) {
        case Change::Create:
            nodeNumbers[step.file] = nodes.size();
            pending.push_back({{}, Own(step.name), nodes.size()});
            nodes.emplace_back();
            Apply(pending.back(), names);
            return;
        case Change::Write:
        case Change::Resize: {
            const auto found = nodeNumbers.find(step.file);
            if (found == nodeNumbers.end()) return;  // a standard stream
            Node& node = nodes[found->second];
            const Write write{static_cast<std::size_t>(step.place), step.bytes, step.change == Change::Resize};
            if (write.isResize) {
                node.now.resize(write.place);
            } else {
                Put(node.now, write.place, write.bytes);
            }
            node.pending.push_back(write);
            return;
        }
        case Change::Flush: {
            Node& node = nodes[NodeOf(step.file)];
            node.flushed = node.now;
            node.pending.clear();
            return;
        }
        case Change::FlushFolder:
            return FlushNamesOf(folders.at(step.file));
        case Change::Rename: {
            const std::string to = Own(step.bytes);
            const std::size_t node = names.at(Own(step.name));
            versions[to].push_back(nodes[node].now);
            pending.push_back({Own(step.name), to, node});
            return Apply(pending.back(), names);
        }
        case Change::Remove:
            pending.push_back({Own(step.name), {}, 0});
            return Apply(pending.back(), names);
    }
}

void Disk::Apply(const NameChange& change, Names& names) {
    if (!change.from.empty()) names.erase(change.from);
    if (!change.to.empty()) names[change.to] = change.node;
}

void Disk::FlushNamesOf(const std::string& itsFolder) {
    std::vector<NameChange> rest;
    for (const NameChange& change : pending) {
        if (FolderOfName(change.to.empty() ? change.from : change.to) == itsFolder) {
            Apply(change, flushedNames);
        } else {
            rest.push_back(change);
        }
    }
    pending = rest;
}

std::string Disk::BytesOf(const Node& node, Unflushed what) const {
    if (what == Unflushed::Kept || node.pending.empty()) return node.now;
    std::string bytes = node.flushed;
    if (what == Unflushed::Lost) return bytes;
    for (const Write& write : node.pending) {
        if (write.isResize) {
            bytes.resize(write.place);
        } else if (what == Unflushed::Zeros) {
            Put(bytes, write.place, std::string(write.bytes.size(), '\0'));
        } else {
            const bool isLast = &write == &node.pending.back();
            Put(bytes, write.place, isLast ? write.bytes.substr(0, write.bytes.size() / 2) : write.bytes);
        }
    }
    return bytes;
}

void Disk::ForEachState(const std::function<void(const Files&)>& look) const {
    constexpr std::size_t most = 8;  // changes of names of which any combination is looked at
    const std::size_t any = std::min(pending.size(), most);
    for (std::size_t chosen = 0; chosen < (std::size_t{1} << any); ++chosen) {
        Names found = flushedNames;
        for (std::size_t i = 0; i < pending.size(); ++i) {
            const std::size_t place = pending.size() - 1 - i;  // the latest are those in doubt
            if (place >= any || ((chosen >> place) & 1U) != 0) Apply(pending[i], found);
        }
        for (const Unflushed what : {Unflushed::Lost, Unflushed::Kept, Unflushed::Torn, Unflushed::Zeros}) {
            Files files;
            for (const auto& [name, node] : found) files[name] = BytesOf(nodes[node], what);
            look(files);
        }
    }
}

}  // namespace korvande::testing
