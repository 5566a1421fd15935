// What is said of the page's style sheet.
export default {
  extends: 'stylelint-config-recommended',
  // The sheet goes from thing to thing, each with its states.
  rules: { 'no-descending-specificity': null },
};
