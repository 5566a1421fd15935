// What is said of JavaScript: the page's, and that of tests and benchmarks.

import js from '@eslint/js';
import globals from 'globals';

const strict = {
  ...js.configs.recommended.rules,
  'consistent-return': 'error',
  eqeqeq: 'error',
  'no-shadow': 'error',
  'no-unused-vars': ['error', { args: 'after-used', varsIgnorePattern: '^_$' }],
  'no-use-before-define': ['error', { functions: false, classes: false, variables: false }],
  'no-var': 'error',
  'prefer-const': ['error', { ignoreReadBeforeAssign: true }],
};

export default [
  { files: ['faces/browser/page/*.js'], rules: strict, languageOptions: { globals: globals.browser } },
  // It tells old browsers that they are too old, so they must be able to read it.
  { files: ['faces/browser/page/start.js'], languageOptions: { ecmaVersion: 5, sourceType: 'script' },
    rules: { 'no-var': 'off' } },
  { files: ['faces/browser/page/worker.js'], languageOptions: { globals: globals.serviceworker } },
  // What tests run in the page stands in them, and sees none of the names around it.
  { files: ['{tests,bench}/**/*.mjs', 'tools/page-screenshots'],
    rules: { ...strict, 'no-shadow': 'off' },
    languageOptions: { globals: { ...globals.node, ...globals.browser } } },
];
