# The rule between the folders, read off the include lines of the files that standard input names.
#
# Written for any awk.  `generatedRoot` is the folder of the generated files among them, or "/".

BEGIN {
  # A layer may include those of a lower rank, and itself; equal ranks don't know each other.
  # `models` are the platform's closed types, generated from its schemas.
  split("platform 0|frame 1|reflect 2|attrlog 2|models 3|hwmodel 4|src-includes 5|" \
        "tools/kestrel 6|examples 6|tests 7|bench 7", pairs, "|")
  for (i in pairs) {
    split(pairs[i], pair, " ")
    rank[pair[1]] = pair[2]
  }
  top = 7

  # These stand beside the ranks, on one layer alone or on none.
  beside["standin/mox"] = "platform"
  beside["standin/xdk"] = "platform"
  beside["tools/schemac"] = "nothing"
}

{
  if ($0 ~ /\.schema$/) schemas[++schemaCount] = $0
  else sources[++sourceCount] = $0
  exists[$0] = 1
}

END {
  for (i = 1; i <= schemaCount; i++) readSchema(schemas[i])
  for (i = 1; i <= sourceCount; i++) readSource(sources[i])
  if (bad) exit 1
  print checked + 0 " includes look down only"
}

# Notes the files that a schema gives: those of each type, of the module, and the header that it
# names itself.
function readSchema(name,   line, words, module, space, layer) {
  layer = name ~ /^platform\// ? "models" : layerOf(name)
  while ((getline line < name) > 0) {
    split(line, words, " ")
    if (words[1] == "module") module = words[2]
    if (words[1] == "header") generated[stemOf(words[2])] = layer
    if (words[1] == "namespace") {
      space = words[2]
      gsub(/::/, "/", space)
      generated[space "/" module] = layer
    }
    if (words[1] ~ /^(entity|enum|value|object)$/) generated[space "/" words[2]] = layer
  }
  close(name)
}

function readSource(name,   line, number, path) {
  while ((getline line < name) > 0) {
    number++
    if (line !~ /^[ \t]*#[ \t]*include[ \t]*["<]/) continue
    checked++
    path = line
    sub(/^[^"<]*["<]/, "", path)
    sub(/[">].*$/, "", path)
    if (line ~ /^[^"<]*</) checkAngle(name, number, path)
    else checkQuoted(name, number, path)
  }
  close(name)
}

# A header of another library shows by its folder; the system's folders are known.
function checkAngle(name, number, path) {
  if (path !~ /\// || path ~ /^(sys|netinet|arpa)\//) return
  if (layerOf(name) ~ /^(tests|bench|examples|tools\/kestrel|standin\/xdk)$/) return
  complain(name, number, "\"" path "\" is of another library")
}

function checkQuoted(name, number, path,   from, to) {
  from = layerOf(name)
  to = path ~ /^standin\/models\// && from != "models" ? "standin/models" : layerOfInclude(path)
  if (to == "")
    complain(name, number, "\"" path "\" is in no include root")
  else if (!allowed(from, to))
    complain(name, number, "\"" path "\" is of " to ", on which " from " must not stand")
}

function allowed(from, to) {
  if (from == to || rank[from] == top) return 1
  if (from in beside) return to == beside[from]
  if (to ~ /^standin\//) return from == "tools/kestrel" || from == "examples"
  return !(to in beside) && rank[to] < rank[from]
}

# The layer of a file; a unit test, and the language of tests, are tests wherever they stand.
function layerOf(name,   parts) {
  if (name ~ /\/([^\/]*Test|Test[A-Z][^\/]*)\.(cpp|h)$/) return "tests"
  if (index(name, generatedRoot) == 1)
    return layerOfGenerated(substr(name, length(generatedRoot) + 1))
  split(name, parts, "/")
  if (name ~ /^standin\/models\//) return "models"
  if (parts[1] == "standin" || parts[1] == "tools") return parts[1] "/" parts[2]
  return parts[1]
}

function layerOfInclude(path) {
  if (path in exists) return layerOf(path)
  if (("platform/" path) in exists) return "platform"
  if (("src-includes/" path) in exists) return "src-includes"
  return layerOfGenerated(path)
}

function layerOfGenerated(path) {
  return stemOf(path) in generated ? generated[stemOf(path)] : ""
}

# A type has several generated files, alike up to the first dot.
function stemOf(path) {
  sub(/\.[A-Za-z.]*$/, "", path)
  return path
}

function complain(name, number, what) {
  print name ":" number ": error: " what
  bad = 1
}
