// Clients that others wrote, against simulated-device: node foreign.js CLIENTS_FOLDER DEVICE_PROGRAM SAMPLES_FOLDER
'use strict';

const assert = require('assert');
const childProcess = require('child_process');
const path = require('path');
const readline = require('readline');

const [clientsFolder, deviceProgram, samplesFolder] = process.argv.slice(2).map(name => path.resolve(name));
const { Cam } = require(path.join(clientsFolder, 'node_modules', 'onvif'));
const discovery = require(path.join(clientsFolder, 'node_modules', 'node-onvif'));

// Starts a device; gives its process and the line that it prints when it is ready.
async function startDevice(options) {
  const device = childProcess.spawn(deviceProgram, [path.join(samplesFolder, 'short-prefixes'), ...options],
                                    { stdio: ['ignore', 'pipe', 'inherit'] });
  for await (const line of readline.createInterface({ input: device.stdout }))
    return { device, ready: JSON.parse(line) };
  throw new Error('The device did not start.');
}

async function withDevice(options, test) {
  const { device, ready } = await startDevice(options);
  try {
    await test(ready);
  } finally {
    device.kill();
  }
}

// Asks for all that the client onvif reads, and compares it with what the samples hold.
async function askAll(ready) {
  const [hostname, port] = ready.devices[0].split(':');
  const cam = new Cam({ hostname, port: Number(port), username: 'operator', password: 'simulated', autoconnect: false,
                        timeout: 60000 });
  const ask = (method, ...parameters) => new Promise((resolve, reject) => {
    cam[method](...parameters, (error, data) => error ? reject(new Error(`${method}: ${error.message}`)) : resolve(data));
  });
  const date = await ask('getSystemDateAndTime');
  assert.ok(Math.abs(date.getTime() - Date.now()) < 600000, `the clock shows ${date}`);

  const capabilities = await ask('getCapabilities');
  assert.strictEqual(capabilities.media.XAddr, `http://${hostname}:${port}/onvif/media`);
  assert.strictEqual(capabilities.device.IO.relayOutputs, 1);

  const information = await ask('getDeviceInformation');
  assert.strictEqual(information.manufacturer, 'Example Optics');
  assert.strictEqual(information.model, 'Bullet 4K');
  assert.strictEqual(information.serialNumber, 'BULLET-4K-20250314-000271');

  const profiles = await ask('getProfiles');
  assert.deepStrictEqual(profiles.map(profile => profile.$.token), ['profile_1', 'profile_2']);
  assert.strictEqual(profiles[0].videoEncoderConfiguration.encoding, 'H264');

  const scopes = [].concat(await ask('getScopes'));
  assert.ok(scopes.some(scope => scope.scopeItem === 'onvif://www.onvif.org/name/Front%20Door'));

  const interfaces = [].concat(await ask('getNetworkInterfaces'));
  assert.strictEqual(interfaces[0].info.name, 'eth0');
  assert.strictEqual(interfaces[0].info.hwAddress, '02:00:5e:4e:5f:60');

  // The client has no method for them, but its own way to ask and to read.
  const relayReply = await ask('_request', {
    body: cam._envelopeHeader() + '<GetRelayOutputs xmlns="http://www.onvif.org/ver10/device/wsdl"/>' + cam._envelopeFooter()
  });
  const relays = relayReply[0].getRelayOutputsResponse[0].relayOutputs;
  assert.deepStrictEqual(relays.map(relay => relay.$.token), ['AlarmOut_1', 'AlarmOut_2']);
  assert.deepStrictEqual(relays[1].properties[0].delayTime, ['PT30S']);

  const name = await ask('getHostname');
  assert.strictEqual(name.name, 'camera-7');

  const stream = await ask('getStreamUri', { protocol: 'RTSP', profileToken: 'profile_2' });
  assert.strictEqual(stream.uri, `rtsp://${hostname}:554/profile_2?transport=RTSP`);
}

async function main() {
  for (const options of [[], ['--auth', 'token'], ['--auth', 'http'], ['--auth', 'http', '--nonce-uses', '1']]) {
    await withDevice(options, askAll);
    console.log(`onvif: all answered (${options.join(' ') || 'open'})`);
  }
  await withDevice(['--devices', '3'], async ready => {
    [discovery._MULTICAST_ADDRESS, discovery._PORT] = [ready.probe.split(':')[0], Number(ready.probe.split(':')[1])];
    let found = [];
    for (let attempt = 0; attempt < 20 && found.length < 3; ++attempt)
      found = await discovery.startProbe();
    assert.deepStrictEqual(found.map(device => device.xaddrs[0]).sort(),
                           ready.devices.map(address => `http://${address}/onvif/device_service`).sort());
    assert.deepStrictEqual(found.map(device => device.hardware), ['BULLET-4K', 'BULLET-4K', 'BULLET-4K']);
  });
  console.log('node-onvif: all found');
}

main().catch(error => {
  console.error(error);
  process.exit(1);
});
