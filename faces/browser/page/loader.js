// Loads the rules and lets their one stack wait for the page: by promise integration where the
// browser has it, else by a program that can wind its stack up and down itself.

const suspending = ['wait', 'pause', 'playCue'];

async function compile(response) {
  const answer = await response;
  if (!answer.ok) throw new Error(`${answer.url.split('/').pop()} did not come`);
  if (answer.headers.get('Content-Type') === 'application/wasm') {
    return WebAssembly.compileStreaming(answer);
  }
  return WebAssembly.compile(await answer.arrayBuffer());
}

/// Gives a function that plays the game to its end. `makeHost` gets the program's memory, as a
/// function since it grows, and makes the functions that the program calls.
export async function load(response, suspends, makeHost) {
  const module = await compile(response);
  let exports;
  const host = makeHost(() => exports.memory);
  return suspends ? integrated() : wound();

  async function start(imports) {
    exports = (await WebAssembly.instantiate(module, { host: imports })).exports;
    exports._initialize();
  }

  async function integrated() {
    const imports = { ...host };
    for (const name of suspending) imports[name] = new WebAssembly.Suspending(host[name]);
    await start(imports);
    return WebAssembly.promising(exports.play);
  }

  async function wound() {
    const running = 0;
    const unwinding = 1;
    const rewinding = 2;
    let awaited;
    let result;
    let stack;
    const imports = { ...host };
    for (const name of suspending) {
      imports[name] = (...values) => {
        if (exports.asyncify_get_state() === rewinding) {
          exports.asyncify_stop_rewind();
          return result;
        }
        const answer = host[name](...values);
        if (!(answer instanceof Promise)) return answer;
        awaited = answer;
        // The stack lies behind two words that say where it is filled to and where it ends.
        const words = new Int32Array(exports.memory.buffer, stack, 2);
        words[0] = stack + 8;
        words[1] = stack + exports.woundStackSize();
        exports.asyncify_start_unwind(stack);
        return 0;
      };
    }
    await start(imports);
    stack = exports.woundStack();
    return async (...values) => {
      exports.play(...values);
      while (exports.asyncify_get_state() === unwinding) {
        exports.asyncify_stop_unwind();
        result = await awaited;
        exports.asyncify_start_rewind(stack);
        exports.play(...values);
      }
      if (exports.asyncify_get_state() !== running) throw new Error('the stack was lost');
    };
  }
}
