#!/usr/bin/env node
// Parses generated Swift with the tree-sitter Swift grammar and checks every name it calls.
//
//   node check.js [--quiet] [--failures FILE] PATH...
//
// PATH is a .swift file or a folder searched for them. A file fails when its tree holds an
// ERROR or MISSING node, or when it calls a member or type that is neither in `api-names.txt`
// (real SwiftUI, Core Graphics and Swift names) nor declared in the file itself: the grammar
// accepts `.rotatedy(x: 1)`, the compiler does not. Prints one line per failing file and a
// summary (only the summary with --quiet); writes the failing paths to FILE, one a line. Exit
// status 1 when a file failed.
'use strict';

const fs = require('fs');
const path = require('path');
const Parser = require('tree-sitter');
const Swift = require('tree-sitter-swift');

const knownNames = new Set(
    fs.readFileSync(path.join(__dirname, 'api-names.txt'), 'utf8')
        .split('\n')
        .map((line) => line.replace(/#.*/, '').trim())
        .filter((line) => line !== ''),
);

function swiftFiles(target, out) {
  const stat = fs.statSync(target);
  if (!stat.isDirectory()) {
    out.push(target);
    return out;
  }
  for (const entry of fs.readdirSync(target).sort()) {
    const full = path.join(target, entry);
    if (fs.statSync(full).isDirectory())
      swiftFiles(full, out);
    else if (entry.endsWith('.swift'))
      out.push(full);
  }
  return out;
}

const where = (node) => `${node.startPosition.row + 1}:${node.startPosition.column + 1}`;

const parser = new Parser();
parser.setLanguage(Swift);

// Declarations: the file's own types, properties, functions and closure parameters. Uses: a
// member (`.name`, `x.name`), a called or named type, or the start of a chain (`Color.red`).
const names = new Parser.Query(
    Swift,
    `(class_declaration name: (type_identifier) @declared)
   (function_declaration name: (simple_identifier) @declared)
   (pattern bound_identifier: (simple_identifier) @declared)
   (lambda_parameter name: (simple_identifier) @declared)
   (parameter name: (simple_identifier) @declared)
   (navigation_suffix suffix: (simple_identifier) @used)
   (prefix_expression operation: "." target: (simple_identifier) @used)
   (call_expression . (simple_identifier) @used)
   (navigation_expression . (simple_identifier) @used)
   (user_type (type_identifier) @used)`,
);

function firstBadNode(node) {
  if (node.type === 'ERROR' || node.isMissing) return node;
  for (const child of node.children) {
    if (child.hasError || child.isMissing) {
      const found = firstBadNode(child);
      if (found) return found;
    }
  }
  return node.isMissing ? node : null;
}

function check(file) {
  const text = fs.readFileSync(file, 'utf8');
  // The default buffer of the binding is too small for the largest generated files.
  const tree = parser.parse(text, null, {bufferSize: Math.max(32 * 1024, 2 * text.length + 1024)});
  const problems = [];
  if (tree.rootNode.hasError) {
    const bad = firstBadNode(tree.rootNode) || tree.rootNode;
    problems.push(`${bad.isMissing ? 'MISSING' : 'ERROR'} at ${where(bad)}`);
  }
  const declared = new Set();
  const used = [];
  for (const capture of names.captures(tree.rootNode)) {
    if (capture.name === 'declared')
      declared.add(capture.node.text);
    else
      used.push(capture.node);
  }
  const unknown = new Map();
  for (const node of used) {
    const name = node.text;
    if (!knownNames.has(name) && !declared.has(name) && !unknown.has(name)) {
      unknown.set(name, where(node));
    }
  }
  for (const [name, at] of unknown) problems.push(`unknown name ${name} at ${at}`);
  return problems;
}

function main(argv) {
  let failuresFile = null;
  let quiet = false;
  const targets = [];
  for (let i = 0; i < argv.length; ++i) {
    if (argv[i] === '--failures')
      failuresFile = argv[++i];
    else if (argv[i] === '--quiet')
      quiet = true;
    else
      targets.push(argv[i]);
  }
  if (targets.length === 0) {
    process.stderr.write('usage: check.js [--quiet] [--failures FILE] PATH...\n');
    return 2;
  }
  const files = [];
  for (const target of targets) swiftFiles(target, files);
  const failed = [];
  for (const file of files) {
    const problems = check(file);
    if (problems.length === 0) continue;
    failed.push(file);
    if (!quiet) process.stdout.write(`${file}: ${problems.join('; ')}\n`);
  }
  if (failuresFile) fs.writeFileSync(failuresFile, failed.map((f) => `${f}\n`).join(''));
  process.stdout.write(
      `swift check: ${files.length} files, ${files.length - failed.length} clean, ` +
      `${failed.length} failed\n`);
  return failed.length === 0 ? 0 : 1;
}

process.exitCode = main(process.argv.slice(2));
